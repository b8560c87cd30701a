// Clipboard, work area, and text measurement.
#include "tests/contract/machine.h"

namespace qdix::contract {
namespace {

class ClipboardContract : public ContractTest {
 protected:
  os::Clipboard& clipboard = machine->TheClipboard();
};

TEST_F(ClipboardContract, TextReplacesThePreviousOne) {
  EXPECT_TRUE(clipboard.SetClipboardData("One\r\nCaf\xE9\r\n"));
  EXPECT_EQ(machine->ClipboardText(), "One\r\nCaf\xE9\r\n");
  EXPECT_TRUE(clipboard.SetClipboardData("Two"));
  EXPECT_EQ(machine->ClipboardText(), "Two");
  EXPECT_TRUE(clipboard.SetClipboardData(""));
  EXPECT_EQ(machine->ClipboardText(), "");
}

TEST_F(ClipboardContract, LongTextIsTakenCompletely) {
  const std::string text(100000, 'x');
  EXPECT_TRUE(clipboard.SetClipboardData(text));
  EXPECT_EQ(machine->ClipboardText(), text);
}

TEST_F(ClipboardContract, ClipboardThatAnotherWindowHasOpenRefuses) {
  EXPECT_TRUE(clipboard.SetClipboardData("kept"));
  machine->HoldClipboard();
  EXPECT_FALSE(clipboard.SetClipboardData("lost"));
  machine->ReleaseClipboard();
  EXPECT_EQ(machine->ClipboardText(), "kept");
  EXPECT_TRUE(clipboard.SetClipboardData("again"));
}

using ScreenContract = ContractTest;

TEST_F(ScreenContract, WorkAreaHasAPlausibleSize) {
  const os::ScreenSize area = machine->TheScreen().WorkArea();
  EXPECT_GE(area.width, 640);
  EXPECT_GE(area.height, 440);
  EXPECT_LE(area.width, 32767);
  EXPECT_LE(area.height, 32767);
}

class TextDeviceContract : public ContractTest {
 protected:
  [[nodiscard]] int Width(const os::FontLook& look, std::string_view text) {
    return device.GetTextExtentPoint32A(look, text);
  }

  os::TextDevice& device = machine->TheTextDevice();
  const os::FontLook body{.points = 8};
  const os::FontLook bold{.points = 8, .is_bold = true};
  const os::FontLook fixed{.points = 9, .is_fixed = true};
};

TEST_F(TextDeviceContract, TextIsAsWideAsItsParts) {
  EXPECT_EQ(Width(body, ""), 0);
  EXPECT_GT(Width(body, "m"), 0);
  EXPECT_EQ(Width(body, "mm"), 2 * Width(body, "m"));
  EXPECT_EQ(Width(body, "A word"), Width(body, "A ") + Width(body, "word"));
}

TEST_F(TextDeviceContract, BoldIsWiderAndFixedHasOneWidth) {
  EXPECT_GT(Width(bold, "memory"), Width(body, "memory"));
  EXPECT_EQ(Width(fixed, "iii"), Width(fixed, "MMM"));
}

TEST_F(TextDeviceContract, LinesAreHigherThanTheirCharacters) {
  int lower = 0;
  for (const int points : {8, 10, 14}) {
    const os::FontHeight height = device.GetTextMetricsA({.points = points});
    EXPECT_GT(height.line_px, height.ascent_px) << points;
    EXPECT_GT(height.ascent_px, lower) << points;
    lower = height.ascent_px;
  }
}

TEST_F(TextDeviceContract, UnderlineTakesNoSpace) {
  const os::FontLook link{.points = 8, .is_underlined = true};
  EXPECT_EQ(Width(link, "the files"), Width(body, "the files"));
  EXPECT_EQ(device.GetTextMetricsA(link).line_px, device.GetTextMetricsA(body).line_px);
}

}  // namespace
}  // namespace qdix::contract
