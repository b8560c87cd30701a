// Prints a topic.
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

/// Cuts no line unless it is higher than a page. Returns at least one page.
[[nodiscard]] std::vector<Page> Paginate(const Layout& layout, int page_height_px);

/// Prints a topic on the chosen printer. Returns false and aborts the document if the printer fails.
[[nodiscard]] bool PrintTopic(os::Printer& printer, const Topic& topic, const std::string& document);

}  // namespace qdix::help_viewer
