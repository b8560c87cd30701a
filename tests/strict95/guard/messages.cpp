// Messages and styles by window class: what the controls of the first Windows 95 know. To them the number of
// another class's message means something else, because the 16-bit controls count their messages from
// WM_USER.
#include <algorithm>
#include <array>
#include <cstring>
#include <optional>

#include "tests/strict95/guard/rules.h"

// clang-format off
#include <commctrl.h>
// clang-format on

namespace qdix::strict95 {

namespace {

/// The messages of a control class, and its styles, which are in the low word.
struct ClassRule {
  const char* name;
  UINT first;
  UINT last;
  DWORD styles;
};

constexpr ClassRule kClasses[] = {
    {"Button", 0xF0, 0xF7, 0xFFEF},
    {"Edit", 0xB0, 0xD7, 0x3DFF},
    {"ListBox", 0x180, 0x1A9, 0x7FFF},
    {"ComboBox", 0x140, 0x161, 0x6FFF},
    {"ScrollBar", 0xE0, 0xEA, 0x1F},
    {"Static", 0x170, 0x173, 0x1FFF},
    {TRACKBAR_CLASSA, 0x400, 0x41C, 0x7F | 0x80},
    {TOOLTIPS_CLASSA, 0x401, 0x410, 0x3},
    {WC_TABCONTROLA, 0x1302, 0x1330, 0xFF30},
    {UPDOWN_CLASSA, 0x465, 0x46E, 0xFF},
};

struct Range {
  UINT first;
  UINT last;
};

/// Message numbers that belong to controls.
constexpr Range kControlRanges[] = {{0xB0, 0xDF},   {0xE0, 0xEF},   {0xF0, 0xFF},   {0x140, 0x16F},
                                    {0x170, 0x17F}, {0x180, 0x1CF}, {0x400, 0x4FF}, {0x1000, 0x1FFF}};

/// Messages of later systems: WM_GETOBJECT, WM_UNINITMENUPOPUP and its neighbours, WM_CHANGEUISTATE and its
/// neighbours, WM_MOUSEWHEEL and the numbers after it, WM_MOUSEHOVER, WM_MOUSELEAVE.
constexpr Range kLater[] = {{0x3D, 0x3D}, {0x122, 0x126}, {0x127, 0x129}, {0x20A, 0x20E}, {0x2A0, 0x2A3}};

template <std::size_t count>
bool IsIn(const Range (&ranges)[count], UINT message) {
  return std::any_of(std::begin(ranges), std::end(ranges), [message](const Range& range) {
    return range.first <= message && message <= range.last;
  });
}

const ClassRule* Find(const char* name) {
  const auto* const found =
      std::find_if(std::begin(kClasses), std::end(kClasses),
                   [name](const ClassRule& one) { return _stricmp(one.name, name) == 0; });
  return found == std::end(kClasses) ? nullptr : found;
}

std::array<char, 64> ClassOf(HWND window) {
  std::array<char, 64> name{};
  GetClassNameA(window, name.data(), static_cast<int>(name.size()));
  return name;
}

/// True if WPARAM does not fit into 16 bits, as the messages of 16-bit controls require; 0xFFFF is their -1.
/// Leaves out addresses, and the handles of images, which are longer in Wine than in Windows 95.
bool HasWideWord(const ClassRule& rule, UINT message, WPARAM wparam) {
  const bool is_16_bit = rule.last < WM_USER;
  const auto number = static_cast<std::int32_t>(wparam);
  const bool is_number =
      message != EM_GETSEL && message != CB_GETEDITSEL && message != STM_SETICON && message != STM_SETIMAGE;
  return is_16_bit && is_number && (number < -1 || number > 0xFFFF);
}

void CheckRecord(const Call& call, const char* name) {
  const bool is_tool = _stricmp(name, TOOLTIPS_CLASSA) == 0;
  const UINT message = call.Argument(2);
  const bool has_tool_info = message == TTM_ADDTOOLA || message == TTM_DELTOOLA ||
                             message == TTM_GETTOOLINFOA || message == TTM_SETTOOLINFOA ||
                             message == TTM_UPDATETIPTEXTA;
  if (!is_tool || !has_tool_info) return;
  const UINT size = call.Argument<const UINT*>(4)[0];
  if (size != 40) Report(call, Rule::kSizes, Format("TOOLINFO is %#x", size));
}

void CheckMessage(Call& call) {
  auto* const window = call.Argument<HWND>(1);
  const UINT message = call.Argument(2);
  if (IsIn(kLater, message)) {
    Report(call, Rule::kMessages, Format("message %#x came with later systems", message));
    return;
  }
  if (!IsIn(kControlRanges, message)) return;
  const auto name = ClassOf(window);
  const ClassRule* const rule = Find(name.data());
  if (rule == nullptr) return;
  if (message < rule->first || message > rule->last) {
    Report(call, Rule::kMessages, Format("%s does not know message %#x", rule->name, message));
    return;
  }
  if (HasWideWord(*rule, message, call.Argument(3))) {
    Report(call, Rule::kSixteenBits,
           Format("word %#x of message %#x to %s", static_cast<unsigned>(call.Argument(3)), message,
                  rule->name));
    call.arguments[2] &= 0xFFFF;
  }
  CheckRecord(call, name.data());
}

void CheckCreation(Call& call) {
  const char* const name = call.Argument<const char*>(2);
  const DWORD style = call.Argument(4);
  if (HIWORD(name) == 0) return;
  const ClassRule* const rule = Find(name);
  if (rule != nullptr && (style & 0xFFFF & ~rule->styles) != 0) {
    Report(call, Rule::kMessages,
           Format("%s does not know style %#lx", rule->name, style & 0xFFFF & ~rule->styles));
  }
  const std::uint32_t number = call.Argument(10);
  if ((style & WS_CHILD) != 0 && number > 0xFFFF) {
    Report(call, Rule::kSixteenBits, Format("control number is %#x", number));
  }
}

}  // namespace

void AddMessageRules(Watches& watches) {
  watches.Before("SendMessageA", &CheckMessage);
  watches.Before("PostMessageA", &CheckMessage);
  watches.Before("CreateWindowExA", &CheckCreation);
}

}  // namespace qdix::strict95
