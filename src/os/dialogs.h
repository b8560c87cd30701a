// Message boxes. The main window owns them; timers and other handlers run while they are open.
#pragma once

#include <cstdint>
#include <string>

namespace qdix::os {

inline constexpr std::uint32_t kMbOk = 0x0000U;
inline constexpr std::uint32_t kMbOkCancel = 0x0001U;
inline constexpr std::uint32_t kMbYesNoCancel = 0x0003U;
inline constexpr std::uint32_t kMbYesNo = 0x0004U;
/// Mask for the bits that select the buttons.
inline constexpr std::uint32_t kMbButtons = 0x000FU;
inline constexpr std::uint32_t kMbIconStop = 0x0010U;
inline constexpr std::uint32_t kMbIconQuestion = 0x0020U;
inline constexpr std::uint32_t kMbIconExclamation = 0x0030U;
inline constexpr std::uint32_t kMbIconInformation = 0x0040U;
inline constexpr std::uint32_t kMbDefaultButton2 = 0x0100U;

inline constexpr int kIdNone = 0;
inline constexpr int kIdOk = 1;
inline constexpr int kIdCancel = 2;
inline constexpr int kIdYes = 6;
inline constexpr int kIdNo = 7;

class Dialogs {
 public:
  /// Shows a message box and returns the answer: kIdOk, kIdCancel, kIdYes or kIdNo. Returns kIdNone if the
  /// box could not be shown, or was dismissed because the program is ending. Treat that answer as "nothing
  /// was agreed".
  virtual int MessageBoxA(const std::string& text, const std::string& title, std::uint32_t flags) = 0;

 protected:
  ~Dialogs() = default;
};

}  // namespace qdix::os
