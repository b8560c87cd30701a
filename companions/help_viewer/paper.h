// A topic on paper.
#pragma once

#include <string>
#include <vector>

#include "help_viewer/layout.h"
#include "os/printer.h"

namespace qdix::help_viewer {

/// The lines of one page, in pixels from the top of the layout: from `first_px` to before `end_px`.
struct Page {
  int first_px = 0;
  int end_px = 0;
};

/// No line is cut, unless it is higher than a page. At least one page.
[[nodiscard]] std::vector<Page> Paginate(const Layout& layout, int page_height_px);

/// Prints a topic on the printer that was chosen. False where it refuses; what was begun is given up.
[[nodiscard]] bool PrintTopic(os::Printer& printer, const Topic& topic, const std::string& document);

}  // namespace qdix::help_viewer
