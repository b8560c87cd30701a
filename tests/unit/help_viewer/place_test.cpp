// The position of the window from one start to the next, and odd values stored in its place.
#include <gtest/gtest.h>

#include "tests/unit/help_viewer/help_rig.h"

namespace qdix::tests {
namespace {

constexpr const char* kKey = "Software\\VB and VBA Program Settings\\QDIX\\Help";

class HelpPlace : public testing::Test {
 protected:
  void Store(const std::string& left, const std::string& top, const std::string& width,
             const std::string& height, const std::string& maximised = "False") {
    Set("Left", left);
    Set("Top", top);
    Set("Width", width);
    Set("Height", height);
    Set("Maximised", maximised);
  }
  void Set(const std::string& name, const std::string& text) {
    rig.machine.SetRegistryValue(os::kHkeyCurrentUser, kKey, name, text);
  }
  [[nodiscard]] std::string Stored(const std::string& name) {
    return rig.machine.RegistryText(os::kHkeyCurrentUser, kKey, name).value_or("(none)");
  }
  /// Returns the position that a start gives the window.
  [[nodiscard]] std::optional<ui::WindowBounds> Restored() { return rig.Start("4").Form().Bounds(); }

  HelpRig rig;
};

TEST_F(HelpPlace, IsSavedWhenTheWindowCloses) {
  rig.Start("4");
  rig.form->Form().UserMoved({.left = 10, .top = 20, .width = 500, .height = 400});
  rig.form->Form().Close();
  EXPECT_EQ(Stored("Left"), "10");
  EXPECT_EQ(Stored("Top"), "20");
  EXPECT_EQ(Stored("Width"), "500");
  EXPECT_EQ(Stored("Height"), "400");
  EXPECT_EQ(Stored("Maximised"), "False");
}

TEST_F(HelpPlace, IsSavedWhenTheSessionEnds) {
  rig.Start("4");
  rig.form->Form().UserMoved({.left = 10, .top = 20, .width = 500, .height = 400});
  rig.form->Form().UserChangedState(ui::WindowState::kMaximised);
  rig.form->EndSession();
  EXPECT_EQ(Stored("Width"), "500");
  EXPECT_EQ(Stored("Maximised"), "True");
}

TEST_F(HelpPlace, WindowNeverPlacedSavesNothing) {
  rig.Start("4");
  rig.form->Form().Close();
  EXPECT_EQ(Stored("Left"), "(none)");
}

TEST_F(HelpPlace, ComesBackAtTheNextStart) {
  Store("10", "20", "500", "400");
  EXPECT_EQ(Restored(), (ui::WindowBounds{10, 20, 500, 400}));
  EXPECT_EQ(rig.form->Form().State(), ui::WindowState::kNormal);
}

TEST_F(HelpPlace, MaximisedWindowComesBackMaximised) {
  Store("10", "20", "500", "400", "True");
  EXPECT_EQ(Restored(), (ui::WindowBounds{10, 20, 500, 400}));
  EXPECT_EQ(rig.form->Form().State(), ui::WindowState::kMaximised);
}

TEST_F(HelpPlace, MissingPlaceLeavesTheWindowWhereTheSystemPutsIt) { EXPECT_EQ(Restored(), std::nullopt); }

TEST_F(HelpPlace, TextThatIsNoNumberIsNoPlace) {
  for (const char* const text : {"", "x", "10x", "True", "1E", "\xFF"}) {
    Store("10", text, "500", "400");
    EXPECT_EQ(Restored(), std::nullopt) << text;
  }
}

TEST_F(HelpPlace, PlaceOffTheScreenIsMovedOntoIt) {
  Store("-2000", "5000", "500", "400");
  EXPECT_EQ(Restored(), (ui::WindowBounds{0, 52, 500, 400}));
  Store("300", "200", "500", "400");
  EXPECT_EQ(Restored(), (ui::WindowBounds{140, 52, 500, 400}));
}

TEST_F(HelpPlace, WindowOfALargerScreenIsMadeSmaller) {
  Store("0", "0", "1600", "1200");
  EXPECT_EQ(Restored(), (ui::WindowBounds{0, 0, 640, 452}));
}

TEST_F(HelpPlace, WindowWithoutASizeGetsOnePixel) {
  Store("10", "20", "0", "-5");
  EXPECT_EQ(Restored(), (ui::WindowBounds{10, 20, 1, 1}));
}

TEST_F(HelpPlace, AnyNumbersDoNoHarm) {
  for (const char* const text : {"1E+300", "-1E+300", "2147483647", "-2147483648", "0.5", "-0"}) {
    Store(text, text, text, text);
    const auto bounds = Restored();
    ASSERT_TRUE(bounds.has_value()) << text;
    EXPECT_GE(bounds->left, 0) << text;
    EXPECT_GE(bounds->width, 1) << text;
    EXPECT_LE(bounds->left + bounds->width, 640) << text;
    EXPECT_LE(bounds->top + bounds->height, 452) << text;
  }
}

TEST_F(HelpPlace, FailingRegistryDoesNoHarm) {
  Store("10", "20", "500", "400");
  for (int call = 1; call < 30; ++call) {
    rig.machine.FailFromCallNumber(rig.machine.FaultableCallCount() + call);
    rig.Start("4");
    rig.form->Form().UserMoved({.left = 1, .top = 2, .width = 300, .height = 300});
    rig.form->Form().Close();
    EXPECT_TRUE(rig.form->Form().Unloaded());
    rig.machine.FailFromCallNumber(0);
  }
  EXPECT_EQ(rig.machine.OpenKeyCount(), 0);
}

}  // namespace
}  // namespace qdix::tests
