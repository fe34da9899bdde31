#include "Basic/ref.h"
#include <gtest/gtest.h>

using basic::Ref;

namespace {
struct Node {
    int value = 1;
    Ref<Node> self;
    int letGoWithin() {
        self = nullptr;
        return value;
    }
};
struct Leaf : Node {
    virtual ~Leaf() = default;
};
struct Branch : Leaf {};
} // namespace

TEST(Ref, UsingNothingIsError91) {
    Ref<Node> nothing;
    const auto err = basic::attempt([&] { nothing->value = 2; });
    EXPECT_EQ(err.Number, 91);
    EXPECT_EQ(err.Description, "Object variable or With block variable not set");
    EXPECT_FALSE(nothing);
    EXPECT_EQ(basic::attempt([&] { (void)*nothing; }).Number, 91);
}

TEST(Ref, DereferencesToTheObject) {
    const auto node = basic::make<Node>();
    (*node).value = 3;
    EXPECT_EQ(&*node, node.shared().get());
    EXPECT_EQ(node->value, 3);
}

TEST(Ref, KeepsItsObjectAliveDuringTheCall) {
    auto node = basic::make<Node>();
    node->self = node;
    std::weak_ptr<Node> watch = node.shared();
    Node* raw = node.shared().get();
    node = nullptr;
    EXPECT_EQ(raw->self->letGoWithin(), 1);
    EXPECT_TRUE(watch.expired());
}

TEST(Ref, ComparesByIdentity) {
    const auto a = basic::make<Node>(), b = basic::make<Node>();
    EXPECT_EQ(a, Ref<Node>(a));
    EXPECT_FALSE(a == b);
    EXPECT_EQ(Ref<Node>(), Ref<Node>(nullptr));
}

TEST(Ref, CastsToAnotherTypeOrNothing) {
    const Ref<Leaf> branch = basic::make<Branch>();
    EXPECT_TRUE(basic::cast<Branch>(branch));
    EXPECT_FALSE(basic::cast<Branch>(basic::make<Leaf>()));
    EXPECT_FALSE(basic::cast<Branch>(Ref<Leaf>()));
}

TEST(Suppressed, KeepsTheLastErrorUntilCleared) {
    basic::Suppressed quietly;
    EXPECT_FALSE(quietly([] { throw basic::RuntimeError(5); }));
    EXPECT_TRUE(quietly([] {}));
    EXPECT_EQ(quietly.Err.Number, 5);
    quietly.Err.Clear();
    EXPECT_EQ(quietly.Err.Number, 0);
}

TEST(Attempt, LetsOtherExceptionsThrough) {
    EXPECT_EQ(basic::attempt([] {}).Number, 0);
    EXPECT_THROW((void)basic::attempt([] { throw std::logic_error("a mistake"); }), std::logic_error);
}

TEST(Attempt, TurnsALackOfMemoryIntoError7) {
    EXPECT_EQ(basic::attempt([] { throw std::bad_alloc(); }).Number, 7);
    basic::Suppressed quietly;
    EXPECT_FALSE(quietly([] { throw std::bad_alloc(); }));
    EXPECT_EQ(quietly.Err.Number, 7);
}
