// Resolves the controls that a target supports to what the host and the toolbox need.
#include "Add-in/core/core_texts.h"
#include "Add-in/devices/clsDeviceConfig.h"
#include "Add-in/devices/device_texts.h"
#include "Basic/text_search.h"
#include <fmt/format.h>

namespace fernwick {

using designtargetaccess::IQLDesignTarget;

namespace {

const char* const kOtherCategory = "Other";

Array<ValidTavlet> workList(Procedure& here, const IQLDesignTarget& target, std::int32_t count) {
    std::vector<std::string> clsids, unused, categories;
    here([&] { target.GetSupportedTavlets(clsids, unused, categories); });
    const Array<std::string> clsidList{0, std::move(clsids)}, categoryList{0, std::move(categories)};
    Array<ValidTavlet> work;
    if (!here([&] { work.ReDim(1, count); })) return work;
    for (std::int32_t i = 1; i <= count; ++i) {
        here([&] { work[i].CLSID = clsidList[i - 1]; });
        here([&] { work[i].CategoryName = categoryList[i - 1]; });
        if (work[i].CategoryName.empty()) work[i].CategoryName = kOtherCategory;
    }
    return work;
}

} // namespace

void clsDeviceConfig::ReadSupportedTavlets(const IQLDesignTarget& target) {
    Procedure here{services_.errors, "clsDeviceConfig.ReadSupportedTavlets"};
    here([&] { tavletCount_ = target.NumSupportedTavlets(); });
    if (tavletCount_ < 1) return;

    auto work = workList(here, target, tavletCount_);
    if (!work.isAllocated()) return;
    for (std::int32_t i = work.LBound(); i <= work.UBound(); ++i) resolveTavlet(here, work[i]);
    orderByGroup(here, work);
}

void clsDeviceConfig::resolveTavlet(Procedure& here, ValidTavlet& tavlet) {
    auto& registry = services_.registry;
    tavlet.progID = services_.references.GetProgID(tavlet.CLSID);
    const auto serverKey = "CLSID\\" + tavlet.CLSID + "\\InprocServer32";
    const RegistryKey key{registry, registry.OpenKey(HKEY_CLASSES_ROOT, serverKey, KEY_READ)};
    if (!key) return leaveOutTavlet(here, texts::kNoProgId, tavlet);
    const auto server = registry.GetStringValue(key.handle(), "").text;
    if (tavlet.progID.empty()) return leaveOutTavlet(here, texts::kNoProgId, tavlet);

    const auto library = here.value([&] { return services_.classes.TypeLibInfoFromFile(server); });
    if (!library) return leaveOutTavlet(here, texts::kNoTypeLibrary, tavlet);
    describeTavlet(here, tavlet, *library);
}

void clsDeviceConfig::describeTavlet(Procedure& here, ValidTavlet& tavlet, const TypeLibInfo& library) {
    here([&] {
        const Array<std::string> pieces{0, basic::Split(tavlet.progID, ".")};
        tavlet.VBProgID = library.Name + "Ctl." + pieces[1];
    });
    tavlet.TypeLibName = library.Name + "Ctl";
    tavlet.FileName = library.ContainingFile;
}

void clsDeviceConfig::leaveOutTavlet(Procedure& here, std::string_view text, const ValidTavlet& tavlet) {
    using namespace fmt::literals;
    --tavletCount_;
    here([&] {
        services_.user.MsgBox(fmt::format(fmt::runtime(text), "progId"_a = tavlet.progID, "deviceKey"_a = DeviceKey),
                              vbExclamation, std::string(texts::kFernwick));
    });
}

void clsDeviceConfig::orderByGroup(Procedure& here, const Array<ValidTavlet>& work) {
    basic::Collection<std::string> namesByPosition, positionsByName;
    if (!services_.prefs.CreateTavletCategoryList(namesByPosition, positionsByName)) {
        tavlets_ = work;
        return;
    }
    tavlets_.ReDim(1, work.UBound());
    std::int32_t next = 1;
    // One less than the last position: its entries are left out of the list, as are those of unknown categories.
    for (std::int32_t position = 1; position < positionsByName.Count(); ++position) {
        const auto category = here.value([&] { return namesByPosition.Item(std::to_string(position)); });
        for (const auto& tavlet : work)
            if (tavlet.CategoryName == category) here([&] { tavlets_[next++] = tavlet; });
    }
}

} // namespace fernwick
