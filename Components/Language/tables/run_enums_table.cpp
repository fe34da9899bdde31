#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kRunEnumsTable = R"(
Enum AlignConstants
  vbAlignNone = 0
  vbAlignTop = 1
  vbAlignBottom = 2
  vbAlignLeft = 3
  vbAlignRight = 4

Enum AlignmentConstants
  vbLeftJustify = 0
  vbRightJustify = 1
  vbCenter = 2

Enum ApplicationStartConstants
  vbSModeStandalone = 0
  vbSModeAutomation = 1

Enum AsyncReadConstants
  vbAsyncReadSynchronousDownload = 1
  vbAsyncReadOfflineOperation = 8
  vbAsyncReadForceUpdate = 16
  vbAsyncReadResynchronize = 512
  vbAsyncReadGetFromCacheIfNetFail = 524288

Enum AsyncStatusCodeConstants
  vbAsyncStatusCodeError = 0
  vbAsyncStatusCodeFindingResource = 1
  vbAsyncStatusCodeConnecting = 2
  vbAsyncStatusCodeRedirecting = 3
  vbAsyncStatusCodeBeginDownloadData = 4
  vbAsyncStatusCodeDownloadingData = 5
  vbAsyncStatusCodeEndDownloadData = 6
  vbAsyncStatusCodeUsingCashedCopy = 10
  vbAsyncStatusCodeSendingRequest = 11
  vbAsyncStatusCodeMIMETypeAvailable = 13
  vbAsyncStatusCodeCacheFileNameAvailable = 14
  vbAsyncStatusCodeBeginSyncOperation = 15
  vbAsyncStatusCodeEndSyncOperation = 16

Enum AsyncTypeConstants
  vbAsyncTypePicture = 0
  vbAsyncTypeFile = 1
  vbAsyncTypeByteArray = 2

Enum BorderStyleConstants
  vbTransparent = 0
  vbBSSolid = 1
  vbBSDash = 2
  vbBSDot = 3
  vbBSDashDot = 4
  vbBSDashDotDot = 5
  vbBSInsideSolid = 6

Enum ButtonConstants
  vbButtonStandard = 0
  vbButtonGraphical = 1

Enum CheckBoxConstants
  vbUnchecked = 0
  vbChecked = 1
  vbGrayed = 2

Enum ClipBoardConstants
  vbCFText = 1
  vbCFBitmap = 2
  vbCFMetafile = 3
  vbCFDIB = 8
  vbCFPalette = 9
  vbCFEMetafile = 14
  vbCFFiles = 15
  vbCFLink = -16640
  vbCFRTF = -16639

Enum ComboBoxConstants
  vbComboDropdown = 0
  vbComboSimple = 1
  vbComboDropdownList = 2

Enum DatabaseTypeConstants
  vbUseODBC = 1
  vbUseJet = 2

Enum DataBOFConstants
  vbMoveFirst = 0
  vbBOF = 1

Enum DataEOFConstants
  vbMoveLast = 0
  vbEOF = 1
  vbAddNew = 2

Enum DataErrorConstants
  vbDataErrContinue = 0
  vbDataErrDisplay = 1

Enum DataValidateConstants
  vbDataActionCancel = 0
  vbDataActionMoveFirst = 1
  vbDataActionMovePrevious = 2
  vbDataActionMoveNext = 3
  vbDataActionMoveLast = 4
  vbDataActionAddNew = 5
  vbDataActionUpdate = 6
  vbDataActionDelete = 7
  vbDataActionFind = 8
  vbDataActionBookmark = 9
  vbDataActionClose = 10
  vbDataActionUnload = 11

Enum DefaultCursorTypeConstants
  vbUseDefaultCursor = 0
  vbUseODBCCursor = 1
  vbUseServersideCursor = 2

Enum DragConstants
  vbCancelDrag = 0
  vbBeginDrag = 1
  vbEndDrag = 2

Enum DragModeConstants
  vbManual = 0
  vbAutomatic = 1

Enum DragOverConstants
  vbEnter = 0
  vbLeave = 1
  vbOver = 2

Enum DrawModeConstants
  vbBlackness = 1
  vbNotMergePen = 2
  vbMaskNotPen = 3
  vbNotCopyPen = 4
  vbMaskPenNot = 5
  vbInvert = 6
  vbXorPen = 7
  vbNotMaskPen = 8
  vbMaskPen = 9
  vbNotXorPen = 10
  vbNop = 11
  vbMergeNotPen = 12
  vbCopyPen = 13
  vbMergePenNot = 14
  vbMergePen = 15
  vbWhiteness = 16

Enum DrawStyleConstants
  vbSolid = 0
  vbDash = 1
  vbDot = 2
  vbDashDot = 3
  vbDashDotDot = 4
  vbInvisible = 5
  vbInsideSolid = 6

Enum FillStyleConstants
  vbFSSolid = 0
  vbFSTransparent = 1
  vbHorizontalLine = 2
  vbVerticalLine = 3
  vbUpwardDiagonal = 4
  vbDownwardDiagonal = 5
  vbCross = 6
  vbDiagonalCross = 7

Enum FormArrangeConstants
  vbCascade = 0
  vbTileHorizontal = 1
  vbTileVertical = 2
  vbArrangeIcons = 3

Enum FormBorderStyleConstants
  vbBSNone = 0
  vbFixedSingle = 1
  vbSizable = 2
  vbFixedDouble = 3
  vbFixedToolWindow = 4
  vbSizableToolWindow = 5
  vbFixedDialog = 3

Enum FormShowConstants
  vbModeless = 0
  vbModal = 1

Enum FormWindowStateConstants
  vbNormal = 0
  vbMinimized = 1
  vbMaximized = 2

Enum HitResultConstants
  vbHitResultOutside = 0
  vbHitResultTransparent = 1
  vbHitResultClose = 2
  vbHitResultHit = 3
)";

} // namespace language
