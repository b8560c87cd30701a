// Native controls notify their parent window. This passes each notification to the peer of the control that
// sent it.
#pragma once

#include <windows.h>

#include <optional>

namespace qdix::ui::win32 {

class PeerTable;

/// Returns the answer to a message that a peer handled, or nothing for any other message.
[[nodiscard]] std::optional<LRESULT> ReflectToPeer(const PeerTable& peers, UINT message, WPARAM wparam,
                                                   LPARAM lparam);

}  // namespace qdix::ui::win32
