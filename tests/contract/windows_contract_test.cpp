// Windows of other programs: finding, walking, restoring, bringing to the front.
#include "tests/contract/machine.h"

namespace qdix::contract {
namespace {

constexpr const char* kClass = "QdixContractWindow";
constexpr const char* kOtherClass = "QdixContractOther";

using WindowsContract = ContractTest;

TEST_F(WindowsContract, MissingWindowIsNotFound) {
  EXPECT_EQ(system.windows.FindWindowA("QdixNoSuchClass", nullptr), 0U);
  EXPECT_EQ(system.windows.FindWindowA(nullptr, "No window has this title"), 0U);
}

TEST_F(WindowsContract, FoundByClassByTitleAndByBoth) {
  const os::WindowHandle window = machine->OpenWindow(kClass, "A Title");
  EXPECT_EQ(system.windows.FindWindowA(kClass, nullptr), window);
  EXPECT_EQ(system.windows.FindWindowA(nullptr, "A Title"), window);
  EXPECT_EQ(system.windows.FindWindowA(kClass, "A Title"), window);
}

TEST_F(WindowsContract, ClassAndTitleIgnoreCase) {
  const os::WindowHandle window = machine->OpenWindow(kClass, "A Title");
  EXPECT_EQ(system.windows.FindWindowA("QDIXCONTRACTWINDOW", "a tITLE"), window);
}

TEST_F(WindowsContract, TitleMustMatchCompletely) {
  machine->OpenWindow(kClass, "A Title");
  EXPECT_EQ(system.windows.FindWindowA(kClass, "A Titl"), 0U);
  EXPECT_EQ(system.windows.FindWindowA(kClass, "A Title "), 0U);
  EXPECT_EQ(system.windows.FindWindowA(kClass, ""), 0U);
}

TEST_F(WindowsContract, BothMustMatch) {
  machine->OpenWindow(kClass, "One");
  const os::WindowHandle other = machine->OpenWindow(kOtherClass, "Two");
  EXPECT_EQ(system.windows.FindWindowA(kClass, "Two"), 0U);
  EXPECT_EQ(system.windows.FindWindowA(kOtherClass, "Two"), other);
}

TEST_F(WindowsContract, TheFrontmostOfSeveralIsFound) {
  machine->OpenWindow(kClass, "Behind");
  const os::WindowHandle front = machine->OpenWindow(kClass, "Front");
  EXPECT_EQ(system.windows.FindWindowA(kClass, nullptr), front);
}

TEST_F(WindowsContract, WindowsOfOneTitleAreFoundFromFrontToBack) {
  const os::WindowHandle behind = machine->OpenWindow(kClass, "A Title");
  machine->OpenWindow(kClass, "Another Title");
  const os::WindowHandle front = machine->OpenWindow(kOtherClass, "A Title");
  EXPECT_EQ(system.windows.FindWindowExA(0, "a tITLE"), front);
  EXPECT_EQ(system.windows.FindWindowExA(front, "A Title"), behind);
  EXPECT_EQ(system.windows.FindWindowExA(behind, "A Title"), 0U);
}

TEST_F(WindowsContract, NothingIsFoundBehindAClosedWindow) {
  machine->OpenWindow(kClass, "A Title");
  const os::WindowHandle gone = machine->OpenWindow(kClass, "A Title");
  machine->CloseWindow(gone);
  EXPECT_EQ(system.windows.FindWindowExA(gone, "A Title"), 0U);
}

TEST_F(WindowsContract, ClosedWindowIsNotFound) {
  const os::WindowHandle window = machine->OpenWindow(kClass, "A Title");
  machine->CloseWindow(window);
  EXPECT_EQ(system.windows.FindWindowA(kClass, nullptr), 0U);
}

TEST_F(WindowsContract, TheWindowInFrontIsTheOneNearerToTheUser) {
  const os::WindowHandle behind = machine->OpenWindow(kClass, "Behind");
  const os::WindowHandle front = machine->OpenWindow(kClass, "Front");
  machine->PlaceDirectlyBehind(behind, front);
  EXPECT_EQ(system.windows.GetWindow(behind, os::kGwHwndPrev), front);
}

TEST_F(WindowsContract, NothingIsInFrontOfAClosedWindow) {
  const os::WindowHandle closed = machine->OpenWindow(kClass, "Closed");
  machine->OpenWindow(kClass, "Front");
  machine->CloseWindow(closed);
  EXPECT_EQ(system.windows.GetWindow(closed, os::kGwHwndPrev), 0U);
}

TEST_F(WindowsContract, WindowHasAThreadUntilItIsClosed) {
  const os::WindowHandle window = machine->OpenWindow(kClass, "A Title");
  const std::uint32_t thread = system.windows.GetWindowThreadProcessId(window);
  EXPECT_NE(thread, 0U);
  EXPECT_EQ(system.windows.GetWindowThreadProcessId(window), thread);
  machine->CloseWindow(window);
  EXPECT_EQ(system.windows.GetWindowThreadProcessId(window), 0U);
  EXPECT_EQ(system.windows.GetWindowThreadProcessId(0), 0U);
}

TEST_F(WindowsContract, MinimisedWindowIsRestored) {
  const os::WindowHandle window = machine->OpenWindow(kClass, "A Title");
  machine->Minimise(window);
  ASSERT_TRUE(machine->IsMinimised(window));
  EXPECT_TRUE(system.windows.OpenIcon(window));
  EXPECT_FALSE(machine->IsMinimised(window));
}

TEST_F(WindowsContract, HiddenWindowIsShownAsItIs) {
  const os::WindowHandle window = machine->OpenWindow(kClass, "A Title");
  machine->Hide(window);
  ASSERT_FALSE(machine->IsShown(window));
  system.windows.OpenIcon(window);
  EXPECT_FALSE(machine->IsShown(window)) << "it is not minimised, so there is nothing to restore";
  EXPECT_FALSE(system.windows.ShowWindow(window, os::kSwShowNa));
  EXPECT_TRUE(machine->IsShown(window));
  EXPECT_TRUE(system.windows.ShowWindow(window, os::kSwShowNa)) << "it is already shown";
  EXPECT_TRUE(machine->IsShown(window));
}

TEST_F(WindowsContract, HiddenMinimisedWindowIsRestoredAndShownByOneCall) {
  const os::WindowHandle window = machine->OpenWindow(kClass, "A Title");
  machine->Minimise(window);
  machine->Hide(window);
  EXPECT_TRUE(system.windows.OpenIcon(window));
  EXPECT_FALSE(machine->IsMinimised(window));
  EXPECT_TRUE(machine->IsShown(window));
}

TEST_F(WindowsContract, ClosedWindowIsNeitherRestoredNorShownNorRaised) {
  const os::WindowHandle window = machine->OpenWindow(kClass, "A Title");
  machine->CloseWindow(window);
  EXPECT_FALSE(system.windows.OpenIcon(window));
  EXPECT_FALSE(system.windows.ShowWindow(window, os::kSwShowNa));
  EXPECT_FALSE(system.windows.SetForegroundWindow(window));
}

TEST_F(WindowsContract, WindowAskedToCloseDisappearsSoonAfter) {
  const os::WindowHandle window = machine->OpenWindow("QdixPosted", "posted");
  EXPECT_TRUE(system.windows.PostMessageA(window, os::kWmClose));
  system.event_pump.PumpEvents();
  EXPECT_EQ(system.windows.FindWindowA("QdixPosted", nullptr), 0U);
  EXPECT_FALSE(system.windows.PostMessageA(window, os::kWmClose));
}

TEST_F(WindowsContract, OwnWindowComesToTheFront) {
  const os::WindowHandle window = machine->OpenWindow(kClass, "A Title");
  machine->OpenWindow(kOtherClass, "In front");
  EXPECT_TRUE(system.windows.SetForegroundWindow(window));
}

}  // namespace
}  // namespace qdix::contract
