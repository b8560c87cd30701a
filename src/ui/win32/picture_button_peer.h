// The window of a button that shows a small icon before its caption. Owner-drawn, because the native button
// shows either an icon or a caption.
#pragma once

#include "ui/win32/simple_peers.h"

namespace qdix::ui::win32 {

class PictureButtonPeer final : public ButtonPeer {
 public:
  PictureButtonPeer(const PeerContext& context, Button& model, HWND parent, int number);
  void ShowAsDefault(bool is_default) override;
  void OnDrawItem(const DRAWITEMSTRUCT& item) override;

 private:
  /// Draws the icon, the gap and the caption, centred together in the button.
  void DrawContent(HDC device, const RECT& face, bool is_disabled) const;

  HICON icon_;
  bool is_default_;
};

}  // namespace qdix::ui::win32
