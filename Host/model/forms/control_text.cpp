#include "Host/model/forms/control_text.h"
#include "Basic/case_folding.h"
#include "Host/files/form_line.h"
#include "Host/files/property_value.h"
#include "Host/model/code/names.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/forms/block_resources.h"
#include "Host/model/forms/control_names.h"
#include "Host/model/forms/form_controls.h"
#include <algorithm>

namespace host {
namespace {

using Control = basic::Ref<vbide::VBControl>;
using Controls = std::vector<Control>;
using Block = std::shared_ptr<FormBlock>;

bool isMenu(const FormBlock& block) { return basic::equalNoCase(block.type(), "VB.Menu"); }

/// Replaces the indentation of the first line in all lines.
std::string indented(std::string_view text, std::string_view indent) {
    std::string out;
    const auto before = text.find_first_not_of(' ');
    while (!text.empty()) {
        auto line = takeWholeLine(text);
        line.remove_prefix(std::min({line.find_first_not_of(' '), before, line.size()}));
        out += indent;
        out += lineText(line);
        out += "\r\n";
    }
    return out;
}

/// Returns the controls of a text, each with the lines that it has within a container.
std::vector<Block> parsed(const std::string& text, std::string_view indent) {
    const auto file = FormFile::parse("Begin VB.Form Copied\r\n" + indented(text, indent) + "End\r\n");
    std::vector<Block> blocks;
    if (!file.root() || !file.root()->isClosed()) return blocks; // a control without an end
    for (const auto& block : file.root()->objects()) {
        const bool isControl = block->type().find('.') != std::string_view::npos && isLegalName(block->name());
        if (isControl && !isMenu(*block) && block->isClosed()) blocks.push_back(block);
    }
    return blocks;
}

/// The blocks of controls, each before those within it.
std::vector<Block> withInner(const std::vector<Block>& blocks) {
    std::vector<Block> all;
    for (const auto& block : blocks) {
        all.push_back(block);
        block->eachBlockWithin([&](const Block& inner) {
            if (inner->kind() == FormBlock::Kind::Object) all.push_back(inner);
        });
    }
    return all;
}

struct ResourceProperty {
    std::string key, literal;
    ResourceReference reference;
};

std::vector<ResourceProperty> resourcesOf(const FormBlock& block) {
    std::vector<ResourceProperty> found;
    block.eachProperty([&](std::string_view key, std::string_view literal) {
        const auto value = parsePropertyValue(literal);
        if (value.kind == PropertyValue::Kind::Resource)
            found.push_back({std::string(key), std::string(literal), value.resource});
    });
    return found;
}

/// Gives a block records of its own.
void takeRecords(DesignerState& state, FormBlock& block, const CopiedRecords& records) {
    for (const auto& [key, literal, reference] : resourcesOf(block)) {
        const auto found = records.find(literal);
        if (found == records.end() || !state.hooks.addResource)
            block.remove(key);
        else
            block.set(key, state.addResource(found->second, reference.isString));
    }
}

/// The controls of a text that are to be added to a form.
std::vector<Block> prepared(DesignerState& state, std::vector<Block> top, const InsertOptions& options) {
    const auto all = withInner(top);
    NewNames names(state, all, options.arrays);
    auto tabIndex = nextTabIndex(state);
    for (const auto& block : all) {
        names.give(*block);
        if (block->literal("TabIndex")) block->set("TabIndex", integerLiteral(tabIndex++));
    }
    if (options.keepsResources) return top;
    for (const auto& block : top) {
        takeRecords(state, *block, options.records);
        block->eachBlockWithin([&](const Block& inner) { takeRecords(state, *inner, options.records); });
    }
    return top;
}

void addObjectLines(DesignerState& state, const std::vector<Block>& blocks) {
    if (!state.hooks.objectLine) return;
    for (const auto& block : blocks)
        if (const auto line = state.hooks.objectLine(std::string(block->type()))) state.file->addObject(*line);
}

void insertBefore(FormBlock& container, const std::vector<Block>& blocks) {
    auto content = container.content();
    const auto at = std::find_if(content.items.begin(), content.items.end(),
                                 [](const auto& item) { return item.isObject() && !isMenu(*item.block); });
    std::vector<FormBlock::Item> items;
    for (const auto& block : blocks) items.push_back({{}, {}, block, true});
    content.items.insert(at, items.begin(), items.end());
    container.content(content);
}

/// An add-in may remove a control when it is notified of it or of an earlier one.
void notify(DesignerState& state, const std::vector<Block>& blocks) {
    if (!state.hooks.controlAdded) return;
    for (const auto& block : blocks)
        if (const auto control = state.controlOf(*block)) state.hooks.controlAdded(control);
}

} // namespace

std::string textOfControls(const Controls& controls) {
    std::string text;
    for (const auto& control : controls) {
        const auto model = basic::cast<ControlModel>(control);
        if (!model || isMenu(*model->block()) || !model->block()->isClosed()) continue;
        std::string lines;
        model->block()->writeTo(lines);
        text += indented(lines, {});
    }
    return text;
}

CopiedRecords recordsOfControls(const basic::Ref<vbide::VBForm>& form, const Controls& controls) {
    const auto state = stateOf(form);
    CopiedRecords records;
    const auto add = [&](const FormBlock& block) {
        for (const auto& [key, literal, reference] : resourcesOf(block))
            if (auto record = recordOf(*state, block, key, reference); !record.empty())
                records[literal] = std::move(record);
    };
    for (const auto& control : controls) {
        const auto model = basic::cast<ControlModel>(control);
        if (!model) continue;
        add(*model->block());
        model->block()->eachBlockWithin([&](const Block& inner) { add(*inner); });
    }
    return records;
}

std::vector<std::string> namesInUse(const basic::Ref<vbide::VBForm>& form, const std::string& text) {
    const auto state = stateOf(form);
    std::vector<std::string> names;
    for (const auto& block : withInner(parsed(text, {}))) {
        const auto control = state->controlNamed(std::string(block->name()));
        if (!control) continue;
        const auto& present = *static_cast<const ControlModel&>(*control).block();
        const bool isSingle = !indexOf(present) && basic::equalNoCase(present.type(), block->type());
        if (isSingle && std::find(names.begin(), names.end(), present.name()) == names.end())
            names.emplace_back(present.name());
    }
    return names;
}

Controls insertControls(const basic::Ref<vbide::VBForm>& form, const Control& container, const std::string& text,
                        const InsertOptions& options) {
    const auto state = stateOf(form);
    const auto model = basic::cast<ControlModel>(container);
    auto& around = model ? *model->block() : state->root();
    if (!around.isClosed()) throw hostError(basic::kInvalidProcedureCall, "The form's file is incomplete.");
    state->checkText(text);
    const auto indent = std::string(parseFormLine(around.content().firstLine).indent) + "   ";
    const auto blocks = prepared(*state, parsed(text, indent), options);
    if (blocks.empty()) throw hostError(basic::kInvalidProcedureCall, "The text has no controls.");
    insertBefore(around, blocks);
    addObjectLines(*state, withInner(blocks));
    state->controlsChanged();
    state->raiseChanged();
    notify(*state, withInner(blocks));
    Controls added;
    for (const auto& block : blocks)
        if (auto control = state->controlOf(*block)) added.push_back(std::move(control));
    return added;
}

} // namespace host
