#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kRunMoreEnumsTable = R"(
Enum LinkErrorConstants
  vbWrongFormat = 1
  vbDDESourceClosed = 6
  vbTooManyLinks = 7
  vbDataTransferFailed = 8

Enum LinkModeConstants
  vbLinkNone = 0
  vbLinkSource = 1
  vbLinkAutomatic = 1
  vbLinkManual = 2
  vbLinkNotify = 3

Enum ListBoxConstants
  vbListBoxStandard = 0
  vbListBoxCheckbox = 1

Enum LoadPictureColorConstants
  vbLPDefault = 0
  vbLPMonochrome = 1
  vbLPVGAColor = 2
  vbLPColor = 3

Enum LoadPictureSizeConstants
  vbLPSmall = 0
  vbLPLarge = 1
  vbLPSmallShell = 2
  vbLPLargeShell = 3
  vbLPCustom = 4

Enum LoadResConstants
  vbResBitmap = 0
  vbResIcon = 1
  vbResCursor = 2

Enum LogEventTypeConstants
  vbLogEventTypeError = 1
  vbLogEventTypeWarning = 2
  vbLogEventTypeInformation = 4

Enum LogModeConstants
  vbLogAuto = 0
  vbLogOff = 1
  vbLogToFile = 2
  vbLogToNT = 3
  vbLogOverwrite = 16
  vbLogThreadID = 32

Enum MenuControlConstants
  vbPopupMenuLeftButton = 0
  vbPopupMenuRightButton = 2
  vbPopupMenuLeftAlign = 0
  vbPopupMenuCenterAlign = 4
  vbPopupMenuRightAlign = 8

Enum MouseButtonConstants
  vbLeftButton = 1
  vbRightButton = 2
  vbMiddleButton = 4

Enum MousePointerConstants
  vbDefault = 0
  vbArrow = 1
  vbCrosshair = 2
  vbIbeam = 3
  vbIconPointer = 4
  vbSizePointer = 5
  vbSizeNESW = 6
  vbSizeNS = 7
  vbSizeNWSE = 8
  vbSizeWE = 9
  vbUpArrow = 10
  vbHourglass = 11
  vbNoDrop = 12
  vbArrowHourglass = 13
  vbArrowQuestion = 14
  vbSizeAll = 15
  vbCustom = 99

Enum MultiSelectConstants
  vbMultiSelectNone = 0
  vbMultiSelectSimple = 1
  vbMultiSelectExtended = 2

Enum NegotiatePositionConstants
  vbNegPosNone = 0
  vbNegPosLeft = 1
  vbNegPosMiddle = 2
  vbNegPosRight = 3

Enum OLEContainerConstants
  vbOLEPrimary = 0
  vbOLEShow = -1
  vbOLEOpen = -2
  vbOLEHide = -3
  vbOLEUIActivate = -4
  vbOLEInPlaceActivate = -5
  vbOLEDiscardUndoState = -6
  vbOLECreateEmbed = 0
  vbOLECreateLink = 1
  vbOLECopy = 4
  vbOLEPaste = 5
  vbOLEUpdate = 6
  vbOLEActivate = 7
  vbOLEClose = 9
  vbOLEDelete = 10
  vbOLESaveToFile = 11
  vbOLEReadFromFile = 12
  vbOLEInsertObjDlg = 14
  vbOLEPasteSpecialDlg = 15
  vbOLEFetchVerbs = 17
  vbOLESaveToOle1File = 18
  vbOLELinked = 0
  vbOLEEmbedded = 1
  vbOLENone = 3
  vbOLEEither = 2
  vbOLEAutomatic = 0
  vbOLEFrozen = 1
  vbOLEManual = 2
  vbOLEActivateManual = 0
  vbOLEActivateGetFocus = 1
  vbOLEActivateDoubleclick = 2
  vbOLEActivateAuto = 3
  vbOLESizeClip = 0
  vbOLESizeStretch = 1
  vbOLESizeAutoSize = 2
  vbOLESizeZoom = 3
  vbOLEDisplayContent = 0
  vbOLEDisplayIcon = 1
  vbOLEChanged = 0
  vbOLESaved = 1
  vbOLEClosed = 2
  vbOLERenamed = 3
  vbOLEMiscFlagMemStorage = 1
  vbOLEMiscFlagDisableInPlace = 2
  vbOLEFlagGrayed = 1
  vbOLEFlagDisabled = 2
  vbOLEFlagChecked = 8
  vbOLEFlagSeparator = 2048

Enum OLEDragConstants
  vbOLEDragManual = 0
  vbOLEDragAutomatic = 1

Enum OLEDropConstants
  vbOLEDropNone = 0
  vbOLEDropManual = 1
  vbOLEDropAutomatic = 2

Enum OLEDropEffectConstants
  vbDropEffectNone = 0
  vbDropEffectCopy = 1
  vbDropEffectMove = 2
  vbDropEffectScroll = -2147483648

Enum PaletteModeConstants
  vbPaletteModeHalftone = 0
  vbPaletteModeUseZOrder = 1
  vbPaletteModeCustom = 2
  vbPaletteModeContainer = 3
  vbPaletteModeNone = 4
  vbPaletteModeObject = 5

Enum ParentControlsType
  vbExtender = 0
  vbNoExtender = 1

Enum PictureTypeConstants
  vbPicTypeNone = 0
  vbPicTypeBitmap = 1
  vbPicTypeMetafile = 2
  vbPicTypeIcon = 3
  vbPicTypeEMetafile = 4

Enum PrinterObjectConstants
  vbPRCMMonochrome = 1
  vbPRCMColor = 2
  vbPRDPSimplex = 1
  vbPRDPHorizontal = 2
  vbPRDPVertical = 3
  vbPRORPortrait = 1
  vbPRORLandscape = 2
  vbPRPQDraft = -1
  vbPRPQLow = -2
  vbPRPQMedium = -3
  vbPRPQHigh = -4
  vbPRBNUpper = 1
  vbPRBNLower = 2
  vbPRBNMiddle = 3
  vbPRBNManual = 4
  vbPRBNEnvelope = 5
  vbPRBNEnvManual = 6
  vbPRBNAuto = 7
  vbPRBNTractor = 8
  vbPRBNSmallFmt = 9
  vbPRBNLargeFmt = 10
  vbPRBNLargeCapacity = 11
  vbPRBNCassette = 14
  vbPRPSLetter = 1
  vbPRPSLetterSmall = 2
  vbPRPSTabloid = 3
  vbPRPSLedger = 4
  vbPRPSLegal = 5
  vbPRPSStatement = 6
  vbPRPSExecutive = 7
  vbPRPSA3 = 8
  vbPRPSA4 = 9
  vbPRPSA4Small = 10
  vbPRPSA5 = 11
  vbPRPSB4 = 12
  vbPRPSB5 = 13
  vbPRPSFolio = 14
  vbPRPSQuarto = 15
  vbPRPS10x14 = 16
  vbPRPS11x17 = 17
  vbPRPSNote = 18
  vbPRPSEnv9 = 19
  vbPRPSEnv10 = 20
  vbPRPSEnv11 = 21
  vbPRPSEnv12 = 22
  vbPRPSEnv14 = 23
  vbPRPSCSheet = 24
  vbPRPSDSheet = 25
  vbPRPSESheet = 26
  vbPRPSEnvDL = 27
  vbPRPSEnvC5 = 28
  vbPRPSEnvC3 = 29
  vbPRPSEnvC4 = 30
  vbPRPSEnvC6 = 31
  vbPRPSEnvC65 = 32
  vbPRPSEnvB4 = 33
  vbPRPSEnvB5 = 34
  vbPRPSEnvB6 = 35
  vbPRPSEnvItaly = 36
  vbPRPSEnvMonarch = 37
  vbPRPSEnvPersonal = 38
  vbPRPSFanfoldUS = 39
  vbPRPSFanfoldStdGerman = 40
  vbPRPSFanfoldLglGerman = 41
  vbPRPSUser = 256

Enum QueryUnloadConstants
  vbFormControlMenu = 0
  vbFormCode = 1
  vbAppWindows = 2
  vbAppTaskManager = 3
  vbFormMDIForm = 4
  vbFormOwner = 5

Enum RasterOpConstants
  vbNotSrcErase = 1114278
  vbNotSrcCopy = 3342344
  vbSrcErase = 4457256
  vbDstInvert = 5570569
  vbPatInvert = 5898313
  vbSrcInvert = 6684742
  vbSrcAnd = 8913094
  vbMergePaint = 12255782
  vbMergeCopy = 12583114
  vbSrcCopy = 13369376
  vbSrcPaint = 15597702
  vbPatCopy = 15728673
  vbPatPaint = 16452105

Enum RecordsetTypeConstants
  vbRSTypeTable = 0
  vbRSTypeDynaset = 1
  vbRSTypeSnapShot = 2

Enum ScaleModeConstants
  vbUser = 0
  vbTwips = 1
  vbPoints = 2
  vbPixels = 3
  vbCharacters = 4
  vbInches = 5
  vbMillimeters = 6
  vbCentimeters = 7
  vbHimetric = 8
  vbContainerPosition = 9
  vbContainerSize = 10

Enum ScrollBarConstants
  vbSBNone = 0
  vbHorizontal = 1
  vbVertical = 2
  vbBoth = 3

Enum ShapeConstants
  vbShapeRectangle = 0
  vbShapeSquare = 1
  vbShapeOval = 2
  vbShapeCircle = 3
  vbShapeRoundedRectangle = 4
  vbShapeRoundedSquare = 5

Enum ShiftConstants
  vbShiftMask = 1
  vbCtrlMask = 2
  vbAltMask = 4

Enum StartUpPositionConstants
  vbStartUpManual = 0
  vbStartUpOwner = 1
  vbStartUpScreen = 2
  vbStartUpWindowsDefault = 3

Enum ZOrderConstants
  vbBringToFront = 0
  vbSendToBack = 1
)";

} // namespace language
