#include "tuning/cache/cache_save.h"

#include "base/numbers.h"
#include "tuning/cache/file_system_template.h"

namespace qdix::tuning {

namespace {

/// The spelling of the file name for writing; removals use lower case. Windows treats both alike.
constexpr const char* kWrittenFile = "System.ini";

}  // namespace

CacheSave::CacheSave(os::Registry& registry, host::Boxes& boxes, screens::CacheScreen& screen,
                     SystemIni& system_ini, FirstSave& first_save, Restart& restart)
    : registry_(registry),
      boxes_(boxes),
      screen_(screen),
      system_ini_(system_ini),
      first_save_(first_save),
      restart_(restart) {
  screen_.Command11.OnClick = ui::Handler::To<&CacheSave::Command11_Click>(*this);
  screen_.Command14.OnClick = ui::Handler::To<&CacheSave::Command14_Click>(*this);
}

base::Status CacheSave::Command11_Click() {
  if (!boxes_.Agrees("Are you sure you want to save these new cache settings?", os::kMbDefaultButton2)) {
    return base::kDone;
  }
  const base::Status saved = Save();
  if (!saved.Ok()) return saved;
  restart_.Offer();
  return base::kDone;
}

/// Writes the caption before the entries that create the key, so on a machine without the key only the second
/// save writes the caption.
base::Status CacheSave::Save() {
  first_save_.CheckFirstSave();
  registry_.WriteRegistryText(os::kHkeyLocalMachine, kTemplatesKey, kUnnamedValue, kOwnTemplate);
  registry_.WriteRegistryText(os::kHkeyLocalMachine, kOwnTemplateKey, kUnnamedValue, "Quondix Settings");
  const base::Status saved = SaveTemplate();
  if (!saved.Ok()) return saved;
  SaveSize(screen_.Check5, screen_.Slider1, kWrittenMinFileCacheEntry);
  SaveSize(screen_.Check6, screen_.Slider2, kWrittenMaxFileCacheEntry);
  SaveSize(screen_.Check7, screen_.Slider3, kWrittenChunkSizeEntry);
  return base::kDone;
}

base::Status CacheSave::SaveTemplate() {
  if (!screen_.Check8.Ticked()) {
    registry_.DeleteRegistryValue(os::kHkeyLocalMachine, kOwnTemplateKey, kNameCacheValue);
    registry_.DeleteRegistryValue(os::kHkeyLocalMachine, kOwnTemplateKey, kPathCacheValue);
    return base::kDone;
  }
  const base::Status saved = SaveTemplateEntry(screen_.Slider4, kNameCacheValue);
  return saved.Ok() ? SaveTemplateEntry(screen_.Slider5, kPathCacheValue) : saved;
}

base::Status CacheSave::SaveTemplateEntry(const ui::Slider& slider, const char* value_name) {
  const base::Result<std::int16_t> entries = base::ToInt16(slider.Value());
  if (!entries.Ok()) return entries.Error();
  registry_.WriteRegistryBinary(os::kHkeyLocalMachine, kOwnTemplateKey, value_name,
                                base::TextOf(entries.Value()));
  return base::kDone;
}

void CacheSave::SaveSize(const ui::CheckBox& box, const ui::Slider& slider, const char* key) {
  if (box.Ticked()) {
    system_ini_.WriteIniValue(kVcacheSection, key, slider.Value(), kWrittenFile);
  } else {
    system_ini_.DeleteIniValue(kVcacheSection, key, kSystemIni);
  }
}

base::Status CacheSave::Command14_Click() {
  for (ui::CheckBox* const box : {&screen_.Check5, &screen_.Check6, &screen_.Check7, &screen_.Check8}) {
    box->SetTicked(false);
  }
  return base::kDone;
}

}  // namespace qdix::tuning
