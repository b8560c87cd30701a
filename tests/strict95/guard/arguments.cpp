// A table of structure sizes, flags, numbers and ranges: what the first Windows 95 knows, and what fits into
// its 16-bit parts.
#include <cstring>

#include "tests/strict95/guard/rules.h"

namespace qdix::strict95 {

namespace {

enum class Check {
  /// The first word of the structure equals the value.
  kSize,
  /// Only these bits are set.
  kFlags,
  /// At most the value.
  kMax,
  /// A signed number of 16 bits, or CW_USEDEFAULT.
  kCoordinate
};

/// Offset for checking the argument itself instead of a field of the structure that it points to.
constexpr int kItself = -1;

struct ArgumentRule {
  const char* function;
  unsigned argument;
  int offset;
  Check check;
  std::uint32_t value;
  const char* what;
};

constexpr ArgumentRule kRules[] = {
    {"Shell_NotifyIconA", 2, 0, Check::kSize, 88, "NOTIFYICONDATA"},
    {"GetOpenFileNameA", 1, 0, Check::kSize, 76, "OPENFILENAME"},
    {"GetSaveFileNameA", 1, 0, Check::kSize, 76, "OPENFILENAME"},
    {"PrintDlgA", 1, 0, Check::kSize, 66, "PRINTDLG"},
    {"StartDocA", 2, 0, Check::kSize, 20, "DOCINFO"},
    {"SetScrollInfo", 3, 0, Check::kSize, 28, "SCROLLINFO"},
    {"GetScrollInfo", 3, 0, Check::kSize, 28, "SCROLLINFO"},
    {"SetWindowPlacement", 2, 0, Check::kSize, 44, "WINDOWPLACEMENT"},
    {"GetWindowPlacement", 2, 0, Check::kSize, 44, "WINDOWPLACEMENT"},
    {"CreateProcessA", 9, 0, Check::kSize, 68, "STARTUPINFO"},
    {"GetVersionExA", 1, 0, Check::kSize, 148, "OSVERSIONINFO"},

    {"SetWindowPos", 7, kItself, Check::kFlags, 0x67FF, "SWP"},
    {"MessageBoxA", 4, kItself, Check::kFlags, 0x1DF37F, "MB"},
    {"TrackPopupMenu", 2, kItself, Check::kFlags, 0x1FE, "TPM"},
    {"GetOpenFileNameA", 1, 52, Check::kFlags, 0x3FFFFF, "OFN"},
    {"PrintDlgA", 1, 20, Check::kFlags, 0x3FFFFF, "PD"},
    {"SHBrowseForFolderA", 1, 16, Check::kFlags, 0x300F, "BIF"},
    {"Shell_NotifyIconA", 2, 12, Check::kFlags, 0x7, "NIF"},
    {"SHFileOperationA", 1, 16, Check::kFlags, 0xFFFF03FF, "FOF"},
    {"LoadImageA", 6, kItself, Check::kFlags, 0xF0FF, "LR"},
    {"DrawTextA", 5, kItself, Check::kFlags, 0x7FFFF, "DT"},
    {"ExtTextOutA", 4, kItself, Check::kFlags, 0x97, "ETO"},
    {"DrawIconEx", 9, kItself, Check::kFlags, 0xF, "DI"},
    {"ExitWindowsEx", 1, kItself, Check::kFlags, 0xF, "EWX"},
    {"PeekMessageA", 5, kItself, Check::kFlags, 0x3, "PM"},
    {"MsgWaitForMultipleObjects", 5, kItself, Check::kFlags, 0xFF, "QS"},
    {"SetScrollInfo", 3, 4, Check::kFlags, 0xF, "SIF"},
    {"GetScrollInfo", 3, 4, Check::kFlags, 0x1F, "SIF"},
    {"SetWindowPlacement", 2, 4, Check::kFlags, 0x3, "WPF"},
    {"SetErrorMode", 1, kItself, Check::kFlags, 0x8007, "SEM"},
    {"CreateFileA", 3, kItself, Check::kFlags, 0x3, "FILE_SHARE"},
    {"VirtualAlloc", 3, kItself, Check::kFlags, 0x103000, "MEM"},
    {"GetDateFormatA", 2, kItself, Check::kFlags, 0x80000003, "DATE"},
    {"RegisterClassA", 1, 0, Check::kFlags, 0xFFFF, "CS"},
    {"CreateWindowExA", 1, kItself, Check::kFlags, 0x777FF, "WS_EX"},

    {"ShowWindow", 2, kItself, Check::kMax, 10, "SW"},
    {"ShellExecuteA", 6, kItself, Check::kMax, 10, "SW"},
    {"GetWindow", 2, kItself, Check::kMax, 5, "GW"},
    {"SHGetSpecialFolderLocation", 2, kItself, Check::kMax, 0x15, "CSIDL"},
    {"SHAddToRecentDocs", 1, kItself, Check::kMax, 2, "SHARD"},
    {"CreateFontA", 12, kItself, Check::kMax, 4, "font quality"},
    {"GetDeviceCaps", 2, kItself, Check::kMax, 115, "device capability"},
    {"SetTimer", 3, kItself, Check::kMax, 0xFFFF, "interval"},
    {"TextOutA", 5, kItself, Check::kMax, 8191, "length"},
    {"ExtTextOutA", 7, kItself, Check::kMax, 8191, "length"},
    {"GetTextExtentPoint32A", 3, kItself, Check::kMax, 8191, "length"},
    {"AppendMenuA", 2, kItself, Check::kMax, 0xFFFF, "MF"},
    {"SetScrollInfo", 3, 8, Check::kCoordinate, 0, "scroll minimum"},
    {"SetScrollInfo", 3, 12, Check::kCoordinate, 0, "scroll maximum"},
    {"SetScrollInfo", 3, 16, Check::kCoordinate, 0, "scroll page"},
    {"SetScrollInfo", 3, 20, Check::kCoordinate, 0, "scroll position"},

    {"CreateWindowExA", 5, kItself, Check::kCoordinate, 0, "left"},
    {"CreateWindowExA", 6, kItself, Check::kCoordinate, 0, "top"},
    {"CreateWindowExA", 7, kItself, Check::kCoordinate, 0, "width"},
    {"CreateWindowExA", 8, kItself, Check::kCoordinate, 0, "height"},
    {"SetWindowPos", 3, kItself, Check::kCoordinate, 0, "left"},
    {"SetWindowPos", 4, kItself, Check::kCoordinate, 0, "top"},
    {"SetWindowPos", 5, kItself, Check::kCoordinate, 0, "width"},
    {"SetWindowPos", 6, kItself, Check::kCoordinate, 0, "height"},
    {"MoveWindow", 2, kItself, Check::kCoordinate, 0, "left"},
    {"MoveWindow", 3, kItself, Check::kCoordinate, 0, "top"},
    {"MoveWindow", 4, kItself, Check::kCoordinate, 0, "width"},
    {"MoveWindow", 5, kItself, Check::kCoordinate, 0, "height"},
    {"BitBlt", 2, kItself, Check::kCoordinate, 0, "left"},
    {"BitBlt", 3, kItself, Check::kCoordinate, 0, "top"},
    {"BitBlt", 4, kItself, Check::kCoordinate, 0, "width"},
    {"BitBlt", 5, kItself, Check::kCoordinate, 0, "height"},
    {"BitBlt", 7, kItself, Check::kCoordinate, 0, "source's left"},
    {"BitBlt", 8, kItself, Check::kCoordinate, 0, "source's top"},
    {"CreateCompatibleBitmap", 2, kItself, Check::kCoordinate, 0, "width"},
    {"CreateCompatibleBitmap", 3, kItself, Check::kCoordinate, 0, "height"},
    {"TextOutA", 2, kItself, Check::kCoordinate, 0, "left"},
    {"TextOutA", 3, kItself, Check::kCoordinate, 0, "top"},
    {"ExtTextOutA", 5, 0, Check::kCoordinate, 0, "box's left"},
    {"ExtTextOutA", 5, 4, Check::kCoordinate, 0, "box's top"},
    {"ExtTextOutA", 5, 8, Check::kCoordinate, 0, "box's right"},
    {"ExtTextOutA", 5, 12, Check::kCoordinate, 0, "box's bottom"},
    {"SetWindowOrgEx", 2, kItself, Check::kCoordinate, 0, "origin"},
    {"SetWindowOrgEx", 3, kItself, Check::kCoordinate, 0, "origin"},
    {"InvalidateRect", 2, 0, Check::kCoordinate, 0, "left"},
    {"InvalidateRect", 2, 4, Check::kCoordinate, 0, "top"},
    {"InvalidateRect", 2, 8, Check::kCoordinate, 0, "right"},
    {"InvalidateRect", 2, 12, Check::kCoordinate, 0, "bottom"},
};

Rule RuleOf(const ArgumentRule& row) {
  switch (row.check) {
    case Check::kSize:
      return Rule::kSizes;
    case Check::kFlags:
      return Rule::kMessages;
    case Check::kCoordinate:
      return Rule::kSixteenBits;
    default:
      return row.value >= 0x1FFF ? Rule::kSixteenBits : Rule::kMessages;
  }
}

bool Fits(const ArgumentRule& row, std::uint32_t value) {
  const auto signed_value = static_cast<std::int32_t>(value);
  switch (row.check) {
    case Check::kSize:
      return value == row.value;
    case Check::kFlags:
      return (value & ~row.value) == 0;
    case Check::kMax:
      return value <= row.value;
    default:
      return value == static_cast<std::uint32_t>(CW_USEDEFAULT) ||
             signed_value == static_cast<std::int16_t>(value);
  }
}

/// True for a field of SCROLLINFO that its mask leaves out.
bool IsGarbage(const ArgumentRule& row, const std::uint32_t* record) {
  if (std::strcmp(row.function, "SetScrollInfo") != 0 || row.offset < 8) return false;
  const std::uint32_t mask = record[1];
  const std::uint32_t field = row.offset <= 12 ? SIF_RANGE : row.offset == 16 ? SIF_PAGE : SIF_POS;
  return (mask & field) == 0;
}

void CheckArgument(const ArgumentRule& row, Call& call) {
  std::uint32_t value = call.Argument(row.argument);
  if (row.offset != kItself) {
    const auto* const record = call.Argument<const std::uint32_t*>(row.argument);
    if (record == nullptr || IsGarbage(row, record)) return;
    std::memcpy(&value, reinterpret_cast<const char*>(record) + row.offset, sizeof value);
  }
  if (Fits(row, value)) return;
  Report(call, RuleOf(row), Format("%s is %#x", row.what, value));
  // Truncate the value as the 16-bit parts of Windows 95 do.
  if (row.offset == kItself && row.check == Check::kCoordinate) {
    call.arguments[row.argument - 1] =
        static_cast<std::uint32_t>(static_cast<std::int32_t>(static_cast<std::int16_t>(value)));
  }
  if (row.offset == kItself && row.check == Check::kMax && RuleOf(row) == Rule::kSixteenBits) {
    call.arguments[row.argument - 1] = value & row.value;
  }
}

}  // namespace

void AddArgumentRules(Watches& watches) {
  for (const ArgumentRule& row : kRules) {
    watches.Before(row.function, [&row](Call& call) { CheckArgument(row, call); });
  }
}

}  // namespace qdix::strict95
