// Makes a system.ini like those that users, programs and installers leave behind: any entries in any form,
// some of them repeated, among lines of other programs.
#pragma once

#include <array>
#include <string>

#include "tests/fuzz/random_source.h"

namespace qdix::tests {

class SystemIniMaker {
 public:
  explicit SystemIniMaker(RandomSource& random) : random_(random) {}

  /// Returns a file with the sections [boot] and [386Enh], and a line break at its end.
  [[nodiscard]] std::string Make() {
    std::string ini = "[boot]" + LineEnd() + "shell=Explorer.exe" + LineEnd() + Foreign();
    const bool has_cache_first = random_.Chance(2);
    if (has_cache_first) ini += Cache();
    ini += "[" + AnyCase("386Enh") + "]" + LineEnd() + Foreign();
    for (const char* const key : {"PagingDrive", "MinPagingFileSize", "MaxPagingFileSize", "Paging"}) {
      ini += Entries(key) + Foreign();
    }
    if (!has_cache_first && !random_.Chance(4)) ini += Cache();
    return ini;
  }

 private:
  std::string LineEnd() { return random_.Chance(10) ? "\n" : "\r\n"; }

  std::string AnyCase(std::string text) {
    if (!random_.Chance(3)) return text;
    for (char& character : text) {
      const bool is_letter = (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
      if (is_letter && random_.Chance(2)) character = static_cast<char>(character ^ ' ');
    }
    return text;
  }

  std::string Cache() {
    std::string section = "[" + AnyCase("vcache") + "]" + LineEnd() + Foreign();
    for (const char* const key : {"MinFileCache", "MaxFileCache", "ChunkSize"})
      section += Entries(key) + Foreign();
    return section;
  }

  /// Returns no line, one, or several equal lines.
  std::string Entries(const char* key) {
    std::string lines;
    const unsigned count = random_.Chance(3) ? 0 : random_.Chance(6) ? 2 + random_.Random() % 3 : 1;
    for (unsigned line = 0; line < count; ++line) {
      lines += Blanks() + AnyCase(key) + Blanks() + "=" + Blanks() + Value() + Blanks() + LineEnd();
    }
    return lines;
  }

  std::string Blanks() { return std::string(random_.Chance(5) ? random_.Random() % 3 : 0, ' '); }

  std::string Value() {
    constexpr std::array<const char*, 22> kValues{"2048",
                                                  "2048 KB",
                                                  "1,024",
                                                  "0",
                                                  "",
                                                  "C:",
                                                  "D:",
                                                  "D",
                                                  "on",
                                                  "off",
                                                  "7",
                                                  "65536",
                                                  "1E3",
                                                  "-5",
                                                  ".5",
                                                  "KB2",
                                                  "\"9 \"",
                                                  "'4096'",
                                                  "99999999999999999",
                                                  "none",
                                                  "0x10",
                                                  "C:\\"};
    if (random_.Chance(12)) return std::string(200 + random_.Random() % 55, '7');
    return kValues[random_.Random() % kValues.size()];
  }

  std::string Foreign() {
    constexpr std::array<const char*, 5> kLines{"device=*vpd", "; a remark", "", "EMMExclude=A000",
                                                "MinFileCacheNot=12"};
    return random_.Chance(3) ? kLines[random_.Random() % kLines.size()] + LineEnd() : "";
  }

  RandomSource& random_;
};

}  // namespace qdix::tests
