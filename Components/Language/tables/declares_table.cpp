#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kDeclaresTable = R"(
' What programs declare of the operating system. The names are without the A or W of their variants.
Library kernel32
Module Functions
  Sub Sleep(dwMilliseconds As Long) ' Waits
  Function GetTickCount64() As Currency ' Milliseconds since the start, as a whole number of 64 bits
  Function GetTickCount() As Long ' Milliseconds since the start
  Function QueryPerformanceCounter(ByRef lpPerformanceCount As Currency) As Long ' A fine clock
  Function QueryPerformanceFrequency(ByRef lpFrequency As Currency) As Long ' Its steps a second
  Function GetTempPath(nBufferLength As Long, ByRef lpBuffer As String) As Long ' A folder for temporary files
  Function GetComputerName(ByRef lpBuffer As String, ByRef nSize As Long) As Long ' The device's name
  Sub GetSystemTime(ByRef lpSystemTime As Any) ' The time in Greenwich
  Sub GetLocalTime(ByRef lpSystemTime As Any) ' The time here
  Sub RtlMoveMemory(ByRef Destination As Any, ByRef Source As Any, Length As Long) absent "Use assignments, Mid and LSet: devices have no addresses"
  Sub RtlZeroMemory(ByRef Destination As Any, Length As Long) absent "Use Erase or a new variable: devices have no addresses"
  Function lstrlen(lpString As String) As Long absent "Use Len or LenB: devices have no addresses"
  Function GetPrivateProfileString(lpApplicationName As String, lpKeyName As Any, lpDefault As String, lpReturnedString As String, nSize As Long, lpFileName As String) As Long absent "Use GetSetting: devices have no .ini files"
  Function WritePrivateProfileString(lpApplicationName As String, lpKeyName As Any, lpString As Any, lpFileName As String) As Long absent "Use SaveSetting: devices have no .ini files"
  Function GetVersionEx(ByRef lpVersionInformation As Any) As Long absent "Use OSVersion of QLDevice: devices have other systems"
  Function LoadLibrary(lpLibFileName As String) As Long absent "Use procedures of the project: devices load no libraries"
  Function FreeLibrary(hLibModule As Long) As Long absent "Use procedures of the project: devices load no libraries"
  Function GetProcAddress(hModule As Long, lpProcName As String) As Long absent "Use procedures of the project: devices load no libraries"
  Function CloseHandle(hObject As Long) As Long absent "Use Open and Close: devices have no handles"
  Function CreateFile(lpFileName As String, dwDesiredAccess As Long, dwShareMode As Long, lpSecurityAttributes As Any, dwCreationDisposition As Long, dwFlagsAndAttributes As Long, hTemplateFile As Long) As Long absent "Use Open: devices have no handles"
  Function OpenProcess(dwDesiredAccess As Long, bInheritHandle As Long, dwProcessId As Long) As Long absent "Remove it: devices run one program"
  Function GetCurrentProcessId() As Long absent "Remove it: devices run one program"
  Function GetWindowsDirectory(lpBuffer As String, nSize As Long) As Long absent "Use App.Path: devices have no system folder"
  Function GetSystemDirectory(lpBuffer As String, nSize As Long) As Long absent "Use App.Path: devices have no system folder"
  Function GetLastError() As Long absent "Use Err.LastDllError: it is kept after each call"

Library winmm
Module Functions
  Function timeGetTime() As Long ' Milliseconds since the start
  Function sndPlaySound(lpszSoundName As String, uFlags As Long) As Long absent "Use QLSound: it plays a file"
  Function PlaySound(lpszName As String, hModule As Long, dwFlags As Long) As Long absent "Use QLSound: it plays a file"
  Function mciSendString(lpstrCommand As String, lpstrReturnString As String, uReturnLength As Long, hwndCallback As Long) As Long absent "Use QLSound or QLMovie: devices have no device drivers for media"

Library advapi32
Module Functions
  Function GetUserName(ByRef lpBuffer As String, ByRef nSize As Long) As Long ' The owner's name
  Function RegOpenKeyEx(hKey As Long, lpSubKey As String, ulOptions As Long, samDesired As Long, ByRef phkResult As Long) As Long absent "Use GetSetting: devices have no registry"
  Function RegCreateKeyEx(hKey As Long, lpSubKey As String, Reserved As Long, lpClass As String, dwOptions As Long, samDesired As Long, lpSecurityAttributes As Any, ByRef phkResult As Long, ByRef lpdwDisposition As Long) As Long absent "Use SaveSetting: devices have no registry"
  Function RegQueryValueEx(hKey As Long, lpValueName As String, lpReserved As Long, ByRef lpType As Long, ByRef lpData As Any, ByRef lpcbData As Long) As Long absent "Use GetSetting: devices have no registry"
  Function RegSetValueEx(hKey As Long, lpValueName As String, Reserved As Long, dwType As Long, ByRef lpData As Any, cbData As Long) As Long absent "Use SaveSetting: devices have no registry"
  Function RegDeleteKey(hKey As Long, lpSubKey As String) As Long absent "Use DeleteSetting: devices have no registry"
  Function RegCloseKey(hKey As Long) As Long absent "Use GetSetting and SaveSetting: devices have no registry"

Library user32
Module Functions
  Function MessageBeep(wType As Long) As Long ' Sounds the speaker
  Function GetSystemMetrics(nIndex As Long) As Long absent "Use Screen: it has the size of the screen"
  Function SendMessage(hWnd As Long, wMsg As Long, wParam As Long, ByRef lParam As Any) As Long absent "Use the properties and methods of the control: devices have no windows"
  Function PostMessage(hWnd As Long, wMsg As Long, wParam As Long, ByRef lParam As Any) As Long absent "Use the properties and methods of the control: devices have no windows"
  Function FindWindow(lpClassName As String, lpWindowName As String) As Long absent "Remove it: devices run one program"
  Function GetWindowLong(hWnd As Long, nIndex As Long) As Long absent "Use the properties of the control: devices have no windows"
  Function SetWindowLong(hWnd As Long, nIndex As Long, dwNewLong As Long) As Long absent "Use the events of the control: devices have no windows"
  Function CallWindowProc(lpPrevWndFunc As Long, hWnd As Long, Msg As Long, wParam As Long, lParam As Long) As Long absent "Use the events of the control: devices have no windows"
  Function SetWindowPos(hWnd As Long, hWndInsertAfter As Long, x As Long, y As Long, cx As Long, cy As Long, wFlags As Long) As Long absent "Use Move and ZOrder: devices have no windows"
  Function ShowWindow(hWnd As Long, nCmdShow As Long) As Long absent "Use Show and Hide: devices have no windows"
  Function SetParent(hWndChild As Long, hWndNewParent As Long) As Long absent "Place the control in its container: devices have no windows"
  Function GetWindowRect(hWnd As Long, ByRef lpRect As Any) As Long absent "Use Left, Top, Width and Height: devices have no windows"
  Function GetClientRect(hWnd As Long, ByRef lpRect As Any) As Long absent "Use ScaleWidth and ScaleHeight: devices have no windows"
  Function GetCursorPos(ByRef lpPoint As Any) As Long absent "Use MouseMove of the control: devices have no mouse pointer"
  Function SetCursorPos(x As Long, y As Long) As Long absent "Remove it: devices have no mouse pointer"
  Function ShowCursor(bShow As Long) As Long absent "Remove it: devices have no mouse pointer"
  Function GetAsyncKeyState(vKey As Long) As Integer absent "Use KeyDown and KeyUp: devices report keys by events"
  Function GetKeyState(nVirtKey As Long) As Integer absent "Use KeyDown and KeyUp: devices report keys by events"
  Function ReleaseCapture() As Long absent "Use MouseMove of the control: devices have no windows"
  Function GetDC(hWnd As Long) As Long absent "Use the drawing methods of the form: devices have no device contexts"
  Function ReleaseDC(hWnd As Long, hDC As Long) As Long absent "Use the drawing methods of the form: devices have no device contexts"
  Function FillRect(hDC As Long, ByRef lpRect As Any, hBrush As Long) As Long absent "Use Line with BF: devices have no device contexts"
  Function GetDesktopWindow() As Long absent "Use Screen: devices have no desktop"
  Function SetTimer(hWnd As Long, nIDEvent As Long, uElapse As Long, lpTimerFunc As Long) As Long absent "Use QLTimer: it raises Timer"
  Function KillTimer(hWnd As Long, nIDEvent As Long) As Long absent "Use QLTimer: set Enabled to False"
  Function LockWindowUpdate(hwndLock As Long) As Long absent "Remove it: devices draw after the event"

Library gdi32
Module Functions
  Function BitBlt(hDestDC As Long, x As Long, y As Long, nWidth As Long, nHeight As Long, hSrcDC As Long, xSrc As Long, ySrc As Long, dwRop As Long) As Long absent "Use PaintPicture: devices have no device contexts"
  Function StretchBlt(hDC As Long, x As Long, y As Long, nWidth As Long, nHeight As Long, hSrcDC As Long, xSrc As Long, ySrc As Long, nSrcWidth As Long, nSrcHeight As Long, dwRop As Long) As Long absent "Use PaintPicture: devices have no device contexts"
  Function GetPixel(hDC As Long, x As Long, y As Long) As Long absent "Use Point: devices have no device contexts"
  Function SetPixel(hDC As Long, x As Long, y As Long, crColor As Long) As Long absent "Use PSet: devices have no device contexts"
  Function SetPixelV(hDC As Long, x As Long, y As Long, crColor As Long) As Long absent "Use PSet: devices have no device contexts"
  Function LineTo(hDC As Long, x As Long, y As Long) As Long absent "Use Line: devices have no device contexts"
  Function Ellipse(hDC As Long, X1 As Long, Y1 As Long, X2 As Long, Y2 As Long) As Long absent "Use Circle: devices have no device contexts"
  Function Rectangle(hDC As Long, X1 As Long, Y1 As Long, X2 As Long, Y2 As Long) As Long absent "Use Line with B: devices have no device contexts"
  Function TextOut(hDC As Long, x As Long, y As Long, lpString As String, nCount As Long) As Long absent "Use Print: devices have no device contexts"
  Function SelectObject(hDC As Long, hObject As Long) As Long absent "Use FillColor, DrawWidth and Font: devices have no device contexts"
  Function DeleteObject(hObject As Long) As Long absent "Use FillColor, DrawWidth and Font: devices have no device contexts"
  Function DeleteDC(hDC As Long) As Long absent "Use the drawing methods of the form: devices have no device contexts"
  Function CreateCompatibleDC(hDC As Long) As Long absent "Use a picture with AutoRedraw: devices have no device contexts"
  Function CreateCompatibleBitmap(hDC As Long, nWidth As Long, nHeight As Long) As Long absent "Use a picture with AutoRedraw: devices have no device contexts"
  Function CreateSolidBrush(crColor As Long) As Long absent "Use FillColor: devices have no device contexts"
  Function GetDeviceCaps(hDC As Long, nIndex As Long) As Long absent "Use Screen: it has the size of the screen"
  Function GetDIBits(hDC As Long, hBitmap As Long, nStartScan As Long, nNumScans As Long, ByRef lpBits As Any, ByRef lpBI As Any, wUsage As Long) As Long absent "Use Point: devices have no device contexts"
  Function SetDIBits(hDC As Long, hBitmap As Long, nStartScan As Long, nNumScans As Long, ByRef lpBits As Any, ByRef lpBI As Any, wUsage As Long) As Long absent "Use PSet: devices have no device contexts"
  Function StretchDIBits(hDC As Long, x As Long, y As Long, dx As Long, dy As Long, SrcX As Long, SrcY As Long, wSrcWidth As Long, wSrcHeight As Long, ByRef lpBits As Any, ByRef lpBitsInfo As Any, wUsage As Long, dwRop As Long) As Long absent "Use PaintPicture: devices have no device contexts"

Library shell32
Module Functions
  Function ShellExecute(hWnd As Long, lpOperation As String, lpFile As String, lpParameters As String, lpDirectory As String, nShowCmd As Long) As Long absent "Call a procedure of the project: devices start no other programs"
  Function Shell_NotifyIcon(dwMessage As Long, ByRef lpData As Any) As Long absent "Remove it: devices have no task bar"
  Function SHBrowseForFolder(ByRef lpBrowseInfo As Any) As Long absent "Use a form with a QLListBox of the Files of a QLFileStore: devices have no common dialogs"
  Function SHGetPathFromIDList(pidList As Long, lpBuffer As String) As Long absent "Use App.Path: devices have no shell"

Library comdlg32
Module Functions
  Function GetOpenFileName(ByRef pOpenfilename As Any) As Long absent "Use a form with a QLListBox of the Files of a QLFileStore: devices have no common dialogs"
  Function GetSaveFileName(ByRef pOpenfilename As Any) As Long absent "Use InputBox: devices have no common dialogs"
  Function ChooseColor(ByRef pChoosecolor As Any) As Long absent "Use a form of the project: devices have no common dialogs"
  Function CommDlgExtendedError() As Long absent "Remove it: devices have no common dialogs"

Library wininet
Module Functions
  Function InternetOpen(sAgent As String, lAccessType As Long, sProxyName As String, sProxyBypass As String, lFlags As Long) As Long absent "Use QLNetwork: it connects to a host and a port"
  Function InternetGetConnectedState(ByRef lpdwFlags As Long, dwReserved As Long) As Long absent "Use QLNetwork: its State shows whether it is connected"

Library urlmon
Module Functions
  Function URLDownloadToFile(pCaller As Long, szURL As String, szFileName As String, dwReserved As Long, lpfnCB As Long) As Long absent "Use QLNetwork: send the request as text"

Library olepro32
Module Functions
  Function OleTranslateColor(lOleColor As Long, lHPalette As Long, ByRef lColorRef As Long) As Long absent "Use RGB or a colour constant: devices translate system colours"

Library oleaut32
Module Functions
  Function OleTranslateColor(lOleColor As Long, lHPalette As Long, ByRef lColorRef As Long) As Long absent "Use RGB or a colour constant: devices translate system colours"
)";

} // namespace language
