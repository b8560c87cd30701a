// A form with a control of each kind and its native windows, for the tests of the peers.
#pragma once

#include <windows.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "os/win32/win32_event_pump.h"
#include "ui/application.h"
#include "ui/canvas.h"
#include "ui/control_numbers.h"
#include "ui/form.h"
#include "ui/lists.h"
#include "ui/ranges.h"
#include "ui/simple_controls.h"
#include "ui/tab_strip.h"
#include "ui/text_box.h"
#include "ui/timer.h"
#include "ui/win32/form_window.h"

namespace qdix::contract {

/// Counts how often a control's event ran.
class EventCount {
 public:
  base::Status Happened() {
    ++count_;
    return base::kDone;
  }
  [[nodiscard]] ui::Handler AsHandler() { return ui::Handler::To<&EventCount::Happened>(*this); }
  [[nodiscard]] int Count() const { return count_; }

 private:
  int count_ = 0;
};

/// Fills its surface with one colour and can push a bar.
class PaintedControl final : public ui::DrawingControl {
 public:
  static constexpr ui::Colour kFill = 0x00204060U;
  static constexpr ui::Colour kBar = 0x000000FFU;

  PaintedControl(ui::Container& parent, const ui::Design& design, ui::BorderStyle border, PixelSize inner)
      : DrawingControl(parent, design, border), inner_(inner) {}

  [[nodiscard]] PixelSize InnerSize() const override { return inner_; }
  [[nodiscard]] ui::Canvas* Canvas() const { return Surface(); }
  void SetBorder(ui::BorderStyle border) { SetBorderStyle(border); }
  void PushBar() {
    Surface()->CopyOntoSelf(0, 0, Surface()->Width() - 2, Surface()->Height(), 2, 0);
    Surface()->FillBox(Surface()->Width() - 2, 0, Surface()->Width() - 1, Surface()->Height() - 1, kBar);
    PixelsChanged();
  }

 private:
  void DrawAll() override {
    Surface()->FillBox(0, 0, Surface()->Width() - 1, Surface()->Height() - 1, kFill);
  }
  PixelSize inner_;
};

inline constexpr ui::Place kDemoPage{.left = 7, .top = 20, .width = 226, .height = 150};
inline constexpr std::array<ui::Design, 3> kDemoPages{{
    {.name = "PageSimple", .caption = "Simple", .place = kDemoPage},
    {.name = "PageLists", .caption = "Lists and ranges", .place = kDemoPage},
    {.name = "PageDrawing", .caption = "Drawing", .place = kDemoPage},
}};

struct DemoModels {
  ui::EventDispatcher events;
  ui::Application application{"Demo title"};
  ui::Form form{events, {.name = "Form", .caption = "Demo & more", .place = {0, 0, 240, 180}}};
  ui::TabStrip tabs{form, {.name = "Tabs", .place = {3, 3, 234, 174}}, kDemoPages};

  ui::Frame frame{tabs.Page(0), {.name = "Frame", .caption = "A frame", .place = {4, 2, 214, 90}}};
  ui::Label label{frame,
                  {.name = "Label", .caption = "Name of it:", .place = {11, 15, 50, 8}, .access_key = 'n'}};
  ui::TextBox text{frame, {.name = "Text", .tool_tip = "Type here", .place = {64, 13, 60, 13}}, 8};
  ui::CheckBox check{
      frame, {.name = "Check", .caption = "R&D wanted", .place = {11, 30, 80, 10}, .access_key = 'w'}};
  ui::OptionButton option1{
      frame, {.name = "Option1", .caption = "First", .place = {11, 44, 50, 10}, .access_key = 'F'}};
  ui::OptionButton option2{
      frame, {.name = "Option2", .caption = "Second", .place = {11, 56, 50, 10}, .access_key = 'S'}};
  ui::OptionButton option3{
      frame, {.name = "Option3", .caption = "Third", .place = {11, 68, 50, 10}, .access_key = 'T'}};
  ui::Button go{tabs.Page(0),
                {.name = "Go", .caption = "Go on", .place = {4, 100, 50, 14}, .access_key = 'G'},
                ui::ButtonRole::kDefault};
  ui::Button stop{tabs.Page(0),
                  {.name = "Stop", .caption = "Stop", .place = {60, 100, 50, 14}, .access_key = 'p'},
                  ui::ButtonRole::kCancel};
  ui::Button other{tabs.Page(0), {.name = "Other", .caption = "Other", .place = {116, 100, 50, 14}}};
  /// Its icon is not in the resources of the tests.
  ui::Button pictured{tabs.Page(0),
                      {.name = "Pictured", .caption = "With picture", .place = {4, 118, 70, 14}},
                      ui::ButtonRole::kPlain,
                      99};
  ui::Picture picture{tabs.Page(0), {.name = "Picture", .place = {190, 120, 21, 20}}, 1};

  ui::ListBox list{tabs.Page(1), {.name = "List", .place = {4, 4, 60, 40}}};
  ui::DropDownList drop{tabs.Page(1), {.name = "Drop", .place = {70, 4, 60, 60}}};
  ui::DropDownCombo combo{tabs.Page(1), {.name = "Combo", .place = {136, 4, 60, 60}}};
  ui::VerticalScrollBar scroll{tabs.Page(1),
                               {.name = "Scroll", .place = {4, 50, 9, 50}},
                               {.minimum = 10, .maximum = 100010, .small_change = 1, .large_change = 100}};
  ui::VerticalScrollBar inverted{tabs.Page(1),
                                 {.name = "Inverted", .place = {20, 50, 9, 50}},
                                 {.minimum = 20, .maximum = 1, .small_change = 1, .large_change = 5}};
  ui::Slider slider{
      tabs.Page(1),
      {.name = "Slider", .place = {40, 50, 120, 20}},
      {.minimum = 1000, .maximum = 300000, .value = 1000, .small_change = 1, .large_change = 1000}};

  ui::Slider stepped{tabs.Page(1),
                     {.name = "Stepped", .place = {40, 75, 120, 20}},
                     {.minimum = 512,
                      .maximum = 4096,
                      .value = 700,
                      .small_change = 512,
                      .large_change = 1024,
                      .step = 512}};

  PaintedControl flat{
      tabs.Page(2), {.name = "Flat", .place = {4, 4, 60, 30}}, ui::BorderStyle::kFlatLine, {}};
  PaintedControl sunken{
      tabs.Page(2), {.name = "Sunken", .place = {70, 4, 60, 30}}, ui::BorderStyle::kThreeD, {100, 20}};

  ui::Timer timer{events, "Timer", 0, false};
  ui::Timer second_timer{events, "SecondTimer", 0, false};
  std::array<ui::Timer*, 2> timers{&timer, &second_timer};

  DemoModels() { events.ReportErrorsTo(ui::EventDispatcher::ErrorReporter::To<&DemoModels::Report>(*this)); }
  void Report(const base::RuntimeError& error) { errors.push_back(error.number); }
  std::vector<int> errors;
};

/// The shown demo with its windows, and the actions of a user on it.
class DemoWindow : public DemoModels {
 public:
  DemoWindow() : window(GetModuleHandleA(nullptr), 1, application, form, timers, ui::win32::MakePeer) {
    pump.SetDialogWindow(window.MainWindow());
  }

  [[nodiscard]] HWND Main() const { return window.MainWindow(); }

  /// Returns the native window of a control, found by its number as another program would find it.
  [[nodiscard]] HWND Native(const ui::Control& control) const {
    const int number = ui::NumberOf(form, control);
    HWND const direct = GetDlgItem(Main(), number);
    if (direct != nullptr) return direct;
    for (int page = 0; page < tabs.Count(); ++page) {
      HWND const on_page = GetDlgItem(GetDlgItem(Main(), ui::NumberOf(form, tabs.Page(page))), number);
      if (on_page != nullptr) return on_page;
    }
    return nullptr;
  }

  LRESULT Send(const ui::Control& control, UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const {
    return SendMessageA(Native(control), message, wparam, lparam);
  }

  /// Sends the control's notification to its parent.
  void Report(const ui::Control& control, UINT code) const {
    HWND const native = Native(control);
    SendMessageA(GetParent(native), WM_COMMAND, MAKEWPARAM(static_cast<UINT>(GetDlgCtrlID(native)), code),
                 reinterpret_cast<LPARAM>(native));
  }

  /// Queues a key press for the window with the focus, as the keyboard does, and handles it.
  void Press(WPARAM key) {
    PostMessageA(GetFocus(), WM_KEYDOWN, key, 1);
    PostMessageA(GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001U));
    Handle();
  }
  void PressAlt(char letter) {
    PostMessageA(GetFocus(), WM_SYSCHAR, static_cast<WPARAM>(letter), 0x20000001);
    Handle();
  }
  void TypeCharacter(char letter) {
    PostMessageA(GetFocus(), WM_CHAR, static_cast<WPARAM>(letter), 1);
    Handle();
  }

  /// Handles all queued messages.
  void Handle() {
    for (int round = 0; round < 10; ++round) pump.PumpEvents();
  }

  os::win32::Win32EventPump pump;
  ui::win32::FormWindow window;
};

/// Holds a key down in the keyboard state during its lifetime.
class HeldKey {
 public:
  explicit HeldKey(int key) : key_(key) { Set(0x80); }
  HeldKey(const HeldKey&) = delete;
  HeldKey& operator=(const HeldKey&) = delete;
  ~HeldKey() { Set(0); }

 private:
  void Set(BYTE state) const {
    std::array<BYTE, 256> keys{};
    GetKeyboardState(keys.data());
    keys[static_cast<std::size_t>(key_)] = state;
    SetKeyboardState(keys.data());
  }
  int key_;
};

inline std::string WindowText(HWND window) {
  std::array<char, 256> text{};
  GetWindowTextA(window, text.data(), static_cast<int>(text.size()));
  return text.data();
}

}  // namespace qdix::contract
