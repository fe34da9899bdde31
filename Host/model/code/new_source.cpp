#include "Host/model/code/new_source.h"
#include <fmt/format.h>
#include <string_view>

namespace host {
namespace {

constexpr std::string_view kFormSize = "   ClientHeight    =   3090\r\n"
                                       "   ClientLeft      =   60\r\n"
                                       "   ClientTop       =   450\r\n"
                                       "   ClientWidth     =   4680\r\n";

constexpr std::string_view kFormScale = "   ScaleHeight     =   3090\r\n"
                                        "   ScaleWidth      =   4680\r\n";

std::string attributes(const std::string& name, bool creatable, bool predeclared, bool exposed) {
    const auto word = [](bool value) { return value ? "True" : "False"; };
    return fmt::format("Attribute VB_Name = \"{}\"\r\n"
                       "Attribute VB_GlobalNameSpace = False\r\n"
                       "Attribute VB_Creatable = {}\r\n"
                       "Attribute VB_PredeclaredId = {}\r\n"
                       "Attribute VB_Exposed = {}\r\n",
                       name, word(creatable), word(predeclared), word(exposed));
}

/// `scale` is the part of the form that an MDI form does not have.
std::string newForm(std::string_view className, const std::string& name, std::string_view scale) {
    return fmt::format("VERSION 5.00\r\n"
                       "Begin {1} {0} \r\n"
                       "   Caption         =   \"{0}\"\r\n"
                       "{2}"
                       "   LinkTopic       =   \"{0}\"\r\n"
                       "{3}"
                       "   StartUpPosition =   3  'Windows Default\r\n"
                       "End\r\n",
                       name, className, kFormSize, scale) +
           attributes(name, false, true, false);
}

std::string newClass(const std::string& name) {
    return "VERSION 1.0 CLASS\r\n"
           "BEGIN\r\n"
           "  MultiUse = -1  'True\r\n"
           "  Persistable = 0  'NotPersistable\r\n"
           "  DataBindingBehavior = 0  'vbNone\r\n"
           "  DataSourceBehavior  = 0  'vbNone\r\n"
           "  MTSTransactionMode  = 0  'NotAnMTSObject\r\n"
           "END\r\n" +
           attributes(name, true, false, false);
}

std::string newDesigner(std::string_view className, const std::string& name, bool exposed) {
    return fmt::format("VERSION 5.00\r\n"
                       "Begin {} {} \r\n"
                       "   ClientHeight    =   3600\r\n"
                       "   ClientLeft      =   0\r\n"
                       "   ClientTop       =   0\r\n"
                       "   ClientWidth     =   4800\r\n"
                       "   ScaleHeight     =   3600\r\n"
                       "   ScaleWidth      =   4800\r\n"
                       "End\r\n",
                       className, name) +
           attributes(name, true, false, exposed);
}

} // namespace

std::string newSource(vbide::vbext_ComponentType type, const std::string& name) {
    switch (type) {
    case vbide::vbext_ct_ClassModule: return newClass(name);
    case vbide::vbext_ct_VBForm: return newForm("VB.Form", name, kFormScale);
    case vbide::vbext_ct_VBMDIForm: return newForm("VB.MDIForm", name, {});
    case vbide::vbext_ct_PropPage: return newDesigner("VB.PropertyPage", name, false);
    case vbide::vbext_ct_UserControl: return newDesigner("VB.UserControl", name, false);
    case vbide::vbext_ct_DocObject: return newDesigner("VB.UserDocument", name, true);
    default: return fmt::format("Attribute VB_Name = \"{}\"\r\n", name);
    }
}

std::string newProjectText(const std::string& name) {
    return fmt::format("Type=Exe\r\n"
                       "Reference=*\\G{{00020430-0000-0000-C000-000000000046}}#2.0#0#stdole2.tlb#OLE Automation\r\n"
                       "Startup=\"(None)\"\r\nCommand32=\"\"\r\nName=\"{}\"\r\nHelpContextID=\"0\"\r\n"
                       "CompatibleMode=\"0\"\r\nMajorVer=1\r\nMinorVer=0\r\nRevisionVer=0\r\nAutoIncrementVer=0\r\n"
                       "ServerSupportFiles=0\r\nCompilationType=0\r\nOptimizationType=0\r\nFavorPentiumPro(tm)=0\r\n"
                       "CodeViewDebugInfo=0\r\nNoAliasing=0\r\nBoundsCheck=0\r\nOverflowCheck=0\r\nFlPointCheck=0\r\n"
                       "FDIVCheck=0\r\nUnroundedFP=0\r\nStartMode=0\r\nUnattended=0\r\nRetained=0\r\n"
                       "ThreadPerObject=0\r\nMaxNumberOfThreads=1\r\n",
                       name);
}

} // namespace host
