#include "help_viewer/win32/pane_colours.h"

namespace qdix::help_viewer::win32 {

namespace {

/// The system colour of links, in Windows 98 and later.
constexpr int kHotLight = 26;
/// The green of links in the help of Windows 95.
constexpr COLORREF kHelpGreen = RGB(0, 128, 0);

/// Returns the brightness: the three colours weighted in percent.
int Brightness(COLORREF colour) {
  return (GetRValue(colour) * 30 + GetGValue(colour) * 59 + GetBValue(colour) * 11) / 100;
}

/// On a dark background, for example in a high-contrast scheme, the green would be unreadable.
COLORREF LinkColour(COLORREF background) {
  constexpr int kDark = 128;
  if (GetSysColorBrush(kHotLight) != nullptr) return GetSysColor(kHotLight);
  return Brightness(background) < kDark ? GetSysColor(COLOR_WINDOWTEXT) : kHelpGreen;
}

}  // namespace

Palette SystemPalette(ui::Colour background) {
  const COLORREF ground = ui::win32::ResolveColour(background);
  return {.background = ground,
          .text = GetSysColor(COLOR_WINDOWTEXT),
          .link = LinkColour(ground),
          .marked_background = GetSysColor(COLOR_HIGHLIGHT),
          .marked_text = GetSysColor(COLOR_HIGHLIGHTTEXT)};
}

}  // namespace qdix::help_viewer::win32
