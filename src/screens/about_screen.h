// The "About" tab. What a form designer shows; no behaviour.
#pragma once

#include "ui/simple_controls.h"

namespace qdix::screens {

struct AboutScreen {
  explicit AboutScreen(ui::Container& on) : page(on) {}

  ui::Container& page;

  ui::Label lblProduct{page, {.name = "lblProduct", .caption = "Q-DIX", .place = {11, 11, 24, 8}}};
  ui::Label lblVersion{page, {.name = "lblVersion", .place = {36, 11, 60, 8}}};
  ui::Label lblPurpose{page,
                       {.name = "lblPurpose",
                        .caption = "Shows how much memory is available and makes Windows hand memory back.",
                        .place = {11, 24, 240, 16}}};
};

}  // namespace qdix::screens
