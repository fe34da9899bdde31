#pragma once
// The host's objects of one project: components, references, code and form designers. Every member may raise a
// RuntimeError; a member of a removed object always does.
#include "Add-in/platform/object.h"
#include "Add-in/platform/variant.h"
#include "Basic/ref.h"
#include <cstdint>
#include <string>
#include <vector>

namespace vbide {

using basic::Ref;
using fernwick::Object;
using fernwick::Variant;

class VBE;
class VBComponent;
class VBComponents;
class Window;

enum vbext_ComponentType : int {
    vbext_ct_StdModule = 1,
    vbext_ct_ClassModule = 2,
    vbext_ct_MSForm = 3,
    vbext_ct_ResFile = 4,
    vbext_ct_VBForm = 5,
    vbext_ct_VBMDIForm = 6,
    vbext_ct_PropPage = 7,
    vbext_ct_UserControl = 8,
    vbext_ct_DocObject = 9,
    vbext_ct_RelatedDocument = 10,
    vbext_ct_ActiveXDesigner = 11,
};

enum vbext_ProcKind : int { vbext_pk_Proc = 0, vbext_pk_Let = 1, vbext_pk_Set = 2, vbext_pk_Get = 3 };

class Properties;

class Property : public Object {
public:
    virtual std::string Name() const = 0;
    virtual Variant Value() const = 0;
    virtual void Value(const Variant& value) = 0;
    /// The members of an object value, such as "Font"; error 424 if the value is not an object.
    virtual Ref<Properties> ObjectValue() const = 0;
};

/// Properties by name, ignoring letter case. Error 9 for an unknown name.
class Properties : public Object {
public:
    virtual int Count() const = 0;
    virtual Ref<Property> Item(const std::string& name) const = 0;
    /// In the order in which the object lists them.
    virtual std::vector<Ref<Property>> items() const = 0;
};

/// One control of a form designer.
class VBControl : public Object {
public:
    /// The class without its library ("TextBox").
    virtual std::string ClassName() const = 0;
    /// The class as written in the form's text: library, "." and class ("VB.TextBox").
    virtual std::string ProgId() const = 0;
    virtual Ref<vbide::Properties> Properties() const = 0;
    /// The controls directly inside this one.
    virtual std::vector<Ref<VBControl>> ContainedVBControls() const = 0;
};

class VBControls : public Object {
public:
    virtual int Count() const = 0;
    /// From 1, in the order of the form's text.
    virtual Ref<VBControl> Item(int index) const = 0;
    virtual Ref<VBControl> Item(const std::string& name) const = 0;
    virtual std::vector<Ref<VBControl>> items() const = 0;
    virtual Ref<VBControl> Add(const std::string& progId) = 0;
    virtual void Remove(const Ref<VBControl>& control) = 0;
};

/// The designer of a form.
class VBForm : public Object {
public:
    /// All controls, including those within containers.
    virtual Ref<vbide::VBControls> VBControls() const = 0;
    /// The controls directly on the form.
    virtual std::vector<Ref<VBControl>> ContainedVBControls() const = 0;
};

class CodePane : public Object {
public:
    virtual void Show() = 0;
    virtual Ref<vbide::Window> Window() = 0;
    /// Lines and columns count from 1.
    virtual void SetSelection(int startLine, int startColumn, int endLine, int endColumn) = 0;
    virtual void GetSelection(int& startLine, int& startColumn, int& endLine, int& endColumn) const = 0;
};

/// A procedure, variable, constant, event or type of a module.
struct Member {
    enum Type : int { Method = 1, Property = 2, Variable = 3, Event = 4, Const = 5 };
    std::string Name;
    Type type = Method;
    /// Line of the code window, from 1.
    int CodeLocation = 0;
    /// 1 private, 2 public, 3 friend.
    int Scope = 2;
    bool Static = false;
};

/// The code window's lines; the file's header and hidden attributes are neither shown nor counted.
class CodeModule : public Object {
public:
    virtual int CountOfLines() const = 0;
    virtual int CountOfDeclarationLines() const = 0;
    /// Returns lines joined by CR LF, without a final one. Error 9 outside of the module.
    virtual std::string Lines(int startLine, int count) const = 0;
    virtual void InsertLines(int line, const std::string& text) = 0;
    virtual void DeleteLines(int startLine, int count = 1) = 0;
    virtual void ReplaceLine(int line, const std::string& text) = 0;
    /// Error 35 for an unknown procedure.
    virtual int ProcStartLine(const std::string& name, vbext_ProcKind kind) const = 0;
    virtual int ProcCountLines(const std::string& name, vbext_ProcKind kind) const = 0;
    virtual std::vector<Member> Members() const = 0;
    virtual Ref<vbide::CodePane> CodePane() = 0;
};

class VBComponent : public Object {
public:
    virtual std::string Name() const = 0;
    virtual void Name(const std::string& name) = 0;
    virtual vbext_ComponentType Type() const = 0;
    /// From 1: the component's file, then its binary companion; "" without a file.
    virtual std::string FileNames(int index) const = 0;
    /// 2 for a component with a binary companion.
    virtual int FileCount() const = 0;
    virtual bool IsDirty() const = 0;
    virtual void IsDirty(bool dirty) = 0;
    /// Always Not IsDirty.
    virtual bool Saved() const = 0;
    virtual void SaveAs(const std::string& path) = 0;
    virtual void Activate() = 0;
    virtual Ref<vbide::CodeModule> CodeModule() = 0;
    /// Error 438 for a component without properties.
    virtual Ref<vbide::Properties> Properties() = 0;
    /// The form designer, or Nothing.
    virtual Ref<VBForm> Designer() = 0;
    virtual bool HasOpenDesigner() const = 0;
    virtual Ref<Window> DesignerWindow() = 0;
    virtual Ref<vbide::VBE> VBE() const = 0;
    virtual Ref<VBComponents> Collection() const = 0;
};

/// The start-up object: nothing, 0 (Sub Main), or a component.
struct StartUp {
    bool isSubMain = false;
    Ref<VBComponent> component;
};

class VBComponents : public Object {
public:
    virtual int Count() const = 0;
    /// From 1. Error 9 outside of the range.
    virtual Ref<VBComponent> Item(int index) const = 0;
    /// Ignores letter case. Error 9 for an unknown name.
    virtual Ref<VBComponent> Item(const std::string& name) const = 0;
    virtual std::vector<Ref<VBComponent>> items() const = 0;
    virtual Ref<VBComponent> Add(vbext_ComponentType type) = 0;
    /// A file from a template folder becomes a new component under a free name and without a file.
    virtual Ref<VBComponent> AddFile(const std::string& path) = 0;
    virtual void Remove(const Ref<VBComponent>& component) = 0;
    virtual StartUp StartUpObject() const = 0;
    virtual void StartUpObject(const StartUp& startUp) = 0;
};

class Reference : public Object {
public:
    virtual std::string Name() const = 0;
    /// In braces, upper case; "" for a reference to a project.
    virtual std::string Guid() const = 0;
    virtual int Major() const = 0;
    virtual int Minor() const = 0;
    /// Native path of the library; that of an Object= line ends in ".oca".
    virtual std::string FullPath() const = 0;
    virtual std::string Description() const = 0;
    virtual bool BuiltIn() const = 0;
    virtual bool IsBroken() const = 0;
};

class References : public Object {
public:
    virtual int Count() const = 0;
    virtual Ref<Reference> Item(int index) const = 0;
    virtual std::vector<Ref<Reference>> items() const = 0;
    /// Returns the existing reference if the project already has this library.
    virtual Ref<Reference> AddFromGuid(const std::string& guid, int major, int minor) = 0;
    virtual Ref<Reference> AddFromFile(const std::string& path) = 0;
    virtual void Remove(const Ref<Reference>& reference) = 0;
};

class VBProject : public Object {
public:
    virtual std::string Name() const = 0;
    /// Error 32813 if another open project has the name.
    virtual void Name(const std::string& name) = 0;
    /// Native path; "" for a project that has never been saved.
    virtual std::string FileName() const = 0;
    virtual bool IsDirty() const = 0;
    virtual void IsDirty(bool dirty) = 0;
    virtual bool Saved() const = 0;
    /// A value stored by an add-in. Error 5 if the section or key is missing.
    virtual std::string ReadProperty(const std::string& section, const std::string& key) const = 0;
    /// Error 5 for a value that contains a line break or a character missing from the project's code page.
    virtual void WriteProperty(const std::string& section, const std::string& key, const std::string& value) = 0;
    /// Returns the text with "?" instead of what WriteProperty refuses.
    virtual std::string StorableText(const std::string& text) const = 0;
    virtual void SaveAs(const std::string& path) = 0;
    virtual void AddToolboxProgID(const std::string& progId) = 0;
    virtual Ref<vbide::References> References() = 0;
    virtual Ref<vbide::VBComponents> VBComponents() = 0;
    virtual Ref<vbide::VBE> VBE() const = 0;
};

} // namespace vbide
