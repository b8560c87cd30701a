// Native controls report to the window they stand in; this hands each report to the peer it is about.
#pragma once

#include <windows.h>

#include <optional>

namespace qdix::ui::win32 {

class PeerTable;

/// The answer to a message that a peer dealt with, or nothing for every other message.
[[nodiscard]] std::optional<LRESULT> ReflectToPeer(const PeerTable& peers, UINT message, WPARAM wparam,
                                                   LPARAM lparam);

}  // namespace qdix::ui::win32
