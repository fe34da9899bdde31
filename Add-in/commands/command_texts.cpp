#include "Add-in/commands/command_texts.h"

namespace fernwick {

namespace {

const char* resString(StringId id) {
    switch (id) {
    case kMenuString: return "&Fernwick";
    case kCompileAndValidateString: return "Compile and &Validate";
    case kSavePackageString: return "Save &Project Package...";
    case kToMyDevicesString: return "&To My Devices";
    case kPalmOSString: return "&Palm OS";
    case kPocketPCString: return "P&ocketPC";
    case kDeployToTargetString: return "Deploy To Design &Target";
    case kDeployToDeviceString: return "&Deploy To Device";
    case kSettingsString: return "Fernwick &Settings...";
    case kInstallRuntimeString: return "Install &Tamarik To Device...";
    case kUsersGuideString: return "Fernwick User's &Guide...";
    case kWebString: return "Quinloft on the &Web...";
    case kAboutString: return "&About Fernwick...";
    case kZoomString: return "&Zoom Window";
    case kOpenProjectString: return "&Open Fernwick Project...";
    case kDownloadRuntimeString: return "Download Tamarik...";
    case kMessagesString: return "Fernwick &Messages Window";
    case kToolbarString: return "Fernwick";
    case kCompileTip: return "Compile and Validate";
    case kDeployTip: return "Deploy to Device";
    case kSettingsTip: return "Fernwick Settings";
    case kUsersGuideTip: return "Fernwick User's Guide";
    case kZoomTip: return "Zoom Level";
    case kOpenProjectTip: return "Open Fernwick Project";
    case kUtilitiesString: return "Quinloft &Utilities";
    case kDatabaseConverterString: return "&Database Converter";
    case kFontConverterString: return "&Font Converter";
    case kFontViewerString: return "F&ont Viewer";
    case kGraphicsConverterString: return "&Graphic Converter";
    case kGraphicsViewerString: return "G&raphic Viewer";
    case kMovieConverterString: return "&Movie Converter";
    case kMovieViewerString: return "Mo&vie Viewer";
    case kWeirgateString: return "&Weirgate Configuration";
    case kDatabaseViewerString: return "&PDB Database Viewer";
    case kSamplesString: return "Samples and Tutorials";
    case kSampleIntroString: return "Introduction to Fernwick";
    case kSampleHelloString: return "Hello World Tutorial";
    case kSampleDirString: return "Open samples directory";
    }
    return "";
}

} // namespace

std::string LoadResString(StringId id) { return resString(id); }

} // namespace fernwick
