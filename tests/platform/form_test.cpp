#include "Add-in/platform/controls.h"
#include "Add-in/platform/tab_strip.h"
#include <gtest/gtest.h>

using namespace fernwick;

namespace {

class frmQuestion : public Form {
public:
    using Form::Form;
    const char* typeName() const override { return "frmQuestion"; }
    Label lblText{this, "lblText", "as designed"};
    CheckBox chkAgain{this, "chkAgain", "Again"};
    ListBox lstRows{this, "lstRows", &frmQuestion::lstRows_Click};
    CommandButton btnOK{this, "btnOK", "OK", &frmQuestion::btnOK_Click};
    PictureBox failedImg{this, "failedImg", "failed", false};
    int Result = 0, activations = 0, clicks = 0, unloads = 0;
    bool fail = false;

private:
    void Form_Load() override { lstRows.AddItem("first"); }
    void Form_Activate() override {
        ++activations;
        if (fail) throw basic::RuntimeError(5, "from Activate");
    }
    void Form_Unload() override { ++unloads; }
    void btnOK_Click() {
        Result = 1;
        Unload();
    }
    void lstRows_Click() {
        ++clicks;
        if (lstRows.ListIndex() == 2) lstRows.RemoveItem(2);
    }
};

struct Presser : Interaction {
    std::function<void(Form&)> act = [](Form& form) { dynamic_cast<CommandButton&>(form.control("btnOK")).press(); };
    void showModal(Form& form) override {
        form.activate();
        act(form);
    }
    int MsgBox(const std::string&, int, const std::string&) override { return vbOK; }
    void ShowSave(CommonDialog&) override {}
    void ShowOpen(CommonDialog&) override {}
    void MessageBeep(int) override {}
    void SetCursor(MousePointerShape) override {}
};

} // namespace

TEST(Form, KeepsFieldsAfterUnloadAndResetsControls) {
    Presser user;
    frmQuestion form{user};
    form.Load();
    form.lblText.Caption("asked");
    form.lblText.Caption("asked again");
    form.failedImg.Visible(true);
    form.ShowModal();
    EXPECT_EQ(form.Result, 1);
    EXPECT_FALSE(form.isLoaded());
    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(form.unloads, 1);
    form.Load();
    EXPECT_EQ(form.lblText.Caption(), "as designed");
    EXPECT_FALSE(form.failedImg.Visible());
    EXPECT_EQ(form.Result, 1);
}

TEST(Form, ShowingAShownFormIsError400) {
    Presser user;
    frmQuestion form{user};
    int number = 0;
    user.act = [&](Form& shown) {
        number = basic::attempt([&] { shown.ShowModal(); }).Number;
        shown.activate();
        shown.Unload();
    };
    form.ShowModal();
    EXPECT_EQ(number, 400);
    EXPECT_EQ(form.activations, 2);
}

TEST(Form, AnErrorEndsTheFormAndIsThrown) {
    Presser user;
    frmQuestion form{user};
    form.fail = true;
    EXPECT_EQ(basic::attempt([&] { form.ShowModal(); }).Description, "from Activate");
    EXPECT_FALSE(form.isLoaded());
    EXPECT_FALSE(form.Visible());
}

TEST(TabStrip, CountsItsTabsFromOne) {
    struct frmTabs : Form {
        using Form::Form;
        const char* typeName() const override { return "frmTabs"; }
        TabStrip tabs{this, "tabs", &frmTabs::tabs_Click};
        int clicks = 0;
        void tabs_Click() { ++clicks; }
    };
    Presser user;
    frmTabs form{user};
    form.tabs.Add("One");
    form.tabs.Add("Two");
    EXPECT_EQ(form.tabs.SelectedItem(), 0);
    for (const int none : {-1, 0, 3})
        EXPECT_EQ(basic::attempt([&] { form.tabs.SelectedItem(none); }).Number, 35600) << none;
    EXPECT_EQ(form.clicks, 0);
    form.tabs.SelectedItem(1);
    form.tabs.SelectedItem(2);
    EXPECT_EQ(std::pair(form.tabs.SelectedItem(), form.clicks), std::pair(2, 2));
    form.tabs.Clear();
    EXPECT_EQ(form.tabs.SelectedItem(), 0);
    EXPECT_TRUE(form.tabs.Tabs().empty());
}

TEST(Form, UnknownControlIsError730) {
    Presser user;
    frmQuestion form{user};
    EXPECT_EQ(basic::attempt([&] { form.control("btnNone"); }).Number, 730);
    EXPECT_EQ(&form.control("chkAgain"), &form.chkAgain);
}

TEST(CommandButton, DisabledOrHiddenIsNotPressed) {
    Presser user;
    frmQuestion form{user};
    form.Load();
    form.btnOK.Enabled(false);
    form.btnOK.press();
    form.btnOK.Enabled(true);
    form.btnOK.Visible(false);
    form.btnOK.press();
    EXPECT_EQ(form.Result, 0);
    form.btnOK.Visible(true);
    form.btnOK.press();
    EXPECT_EQ(form.Result, 1);
}

TEST(CheckBox, SettingAnotherValueClicks) {
    Presser user;
    frmQuestion form{user};
    int clicks = 0;
    const auto watch = form.chkAgain.Click.connect([&] { ++clicks; });
    form.chkAgain.Value(1);
    form.chkAgain.Value(1);
    EXPECT_EQ(clicks, 1);
}

TEST(ListBox, SelectsClicksAndRemoves) {
    Presser user;
    frmQuestion form{user};
    form.Load();
    for (const auto* text : {"second", "third"}) form.lstRows.AddItem(text);
    EXPECT_EQ(form.lstRows.NewIndex(), 2);
    form.lstRows.ListIndex(1);
    form.lstRows.ListIndex(2); // its handler removes the row that was clicked
    EXPECT_EQ(form.clicks, 2);
    EXPECT_EQ(form.lstRows.ListIndex(), -1);
    EXPECT_EQ(form.lstRows.ListCount(), 2);
    EXPECT_EQ(basic::attempt([&] { form.lstRows.ListIndex(2); }).Number, 380);
    EXPECT_EQ(basic::attempt([&] { form.lstRows.List(2); }).Number, 381);
    form.lstRows.ListIndex(1);
    form.lstRows.RemoveItem(0);
    EXPECT_EQ(form.lstRows.ListIndex(), 0);
}

TEST(ListBox, ReportsEachChange) {
    using Change = ListBox::Change;
    Presser user;
    frmQuestion form{user};
    form.Load();
    auto& list = form.lstRows;
    std::vector<std::pair<Change::Kind, int>> changes;
    const auto watch =
        list.changed.connect([&](const Change& change) { changes.emplace_back(change.kind, change.row); });
    list.AddItem("second");
    list.AddItem("third");
    list.List(1, "2nd");
    list.Selected(0, true);
    list.ListIndex(1);
    list.RemoveItem(1);
    list.Clear();
    EXPECT_EQ(changes, (std::vector<std::pair<Change::Kind, int>>{{Change::Inserted, 1},
                                                                  {Change::Inserted, 2},
                                                                  {Change::Altered, 1},
                                                                  {Change::Altered, 0},
                                                                  {Change::Altered, 1},
                                                                  {Change::Removed, 1},
                                                                  {Change::Reset, -1}}));
}

TEST(ListBox, NewIndexIsOfTheRowAddedLast) {
    Presser user;
    frmQuestion form{user};
    auto& list = form.lstRows;
    EXPECT_EQ(list.NewIndex(), -1);
    form.Load();
    EXPECT_EQ(list.NewIndex(), 0);
    list.AddItem("second");
    list.ListIndex(0);
    EXPECT_EQ(list.NewIndex(), 1);
    list.RemoveItem(0);
    EXPECT_EQ(list.NewIndex(), -1);
    list.AddItem("third");
    list.ListIndex(1);
    list.Clear();
    EXPECT_EQ(list.NewIndex(), -1);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.ListCount(), 0);
}

TEST(Property, WatcherMayEndItselfSetAgainOrDestroyTheProperty) {
    auto property = std::make_unique<Property<int>>(1);
    std::vector<int> notified;
    Subscription self;
    self = property->watch([&](int v) {
        notified.push_back(v);
        self.reset();
    });
    const auto again = property->watch([&](int v) {
        notified.push_back(v);
        if (v == 2) (*property)(3);
    });
    const auto kill = property->watch([&](int v) {
        notified.push_back(-v);
        if (v == 3) property.reset();
    });
    (*property)(2);
    EXPECT_FALSE(property);
    EXPECT_EQ(notified, (std::vector<int>{2, 2, 3, -3})); // no outer -2: the property was destroyed
}

TEST(Property, EqualValuesDoNotNotify) {
    Property<std::string> property{"a"};
    int notified = 0;
    const auto watch = property.watch([&](const std::string&) { ++notified; });
    property("a");
    property("b");
    EXPECT_EQ(notified, 1);
}
