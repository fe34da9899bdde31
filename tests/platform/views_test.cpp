// Trees and lists of forms, without a window.
#include "Add-in/platform/list_view.h"
#include "Add-in/platform/tree_view.h"
#include "tests/support/errors.h"
#include "tests/support/scripted_user.h"
#include <gmock/gmock.h>

using namespace fernwick;
using testing::ElementsAre;

namespace {

struct ViewsForm : Form {
    using Form::Form;
    const char* typeName() const override { return "ViewsForm"; }
    void nodeClicked(const std::string& key) { clicked.push_back(key + " in " + tree.SelectedItem()); }
    TreeView tree{this, "tree", &ViewsForm::nodeClicked};
    ListView list{this, "list"};
    std::vector<std::string> clicked;
};

class Views : public testing::Test {
protected:
    Views() {
        form.tree.Add("", "fruit", "Fruit");
        form.tree.Add("fruit", "pear", "Pear");
    }
    test::ScriptedUser user;
    ViewsForm form{user};
};

} // namespace

TEST_F(Views, ATreesNodesHaveUniqueKeysAndKnownParents) {
    EXPECT_EQ(test::errorOf([&] { form.tree.Add("", "pear", "Again"); }), 35602);
    EXPECT_EQ(test::errorOf([&] { form.tree.Add("meat", "ham", "Ham"); }), 35601);
    EXPECT_EQ(form.tree.Nodes().size(), 2u);
    EXPECT_EQ(form.tree.Nodes()[1].Parent, "fruit");
}

TEST_F(Views, OnlyTheUsersChoiceOfANodeIsAClick) {
    form.tree.SelectedItem("fruit");
    EXPECT_THAT(form.clicked, ElementsAre());
    form.tree.choose("pear");
    form.tree.choose("pear");
    EXPECT_THAT(form.clicked, ElementsAre("pear in pear"));
    EXPECT_EQ(test::errorOf([&] { form.tree.SelectedItem("meat"); }), 35601);
    EXPECT_EQ(form.tree.SelectedItem(), "pear");
}

TEST_F(Views, ATreesTextChangesButNotItsKey) {
    form.tree.Text("fruit", "Apples");
    form.tree.Expanded("fruit", true);
    EXPECT_EQ(form.tree.Nodes()[0].Key, "fruit");
    EXPECT_EQ(form.tree.Nodes()[0].Text, "Apples");
    EXPECT_TRUE(form.tree.Nodes()[0].Expanded);
    form.tree.SelectedItem("pear");
    form.tree.Clear();
    EXPECT_TRUE(form.tree.Nodes().empty());
    EXPECT_EQ(form.tree.SelectedItem(), "");
}

TEST_F(Views, AListsRowsHaveOneCellForEachColumn) {
    form.list.Show({{"Name"}, {"Size", true}}, {{{"a"}, ""}, {{"b", "2", "more"}, ""}});
    EXPECT_THAT(form.list.Items()[0].Cells, ElementsAre("a", ""));
    EXPECT_THAT(form.list.Items()[1].Cells, ElementsAre("b", "2"));
    form.list.Selected(1, true);
    EXPECT_TRUE(form.list.Items()[1].Selected);
    EXPECT_EQ(test::errorOf([&] { form.list.Selected(2, true); }), 35600);
    EXPECT_EQ(test::errorOf([&] { form.list.Selected(-1, true); }), 35600);
}
