// The rules, one file each. README.md lists them.
#pragma once

#include "tests/strict95/guard/call.h"
#include "tests/strict95/guard/report.h"

namespace qdix::strict95 {

void AddArgumentRules(Watches& watches);
void AddMessageRules(Watches& watches);
void AddRegistryRules(Watches& watches);
void AddResourceRules(Watches& watches);
void AddSelectionRules(Watches& watches);
void AddForegroundRules(Watches& watches);
void AddDriveRules(Watches& watches);
void AddControlWordRules(Watches& watches);
void AddProfileRules(Watches& watches);
void AddDeviceRules(Watches& watches);
void AddAnswers(Watches& watches, HMODULE guard);
void AddStartCommand(Watches& watches);

inline void AddAllRules(Watches& watches, HMODULE guard) {
  AddArgumentRules(watches);
  AddMessageRules(watches);
  AddRegistryRules(watches);
  AddResourceRules(watches);
  AddSelectionRules(watches);
  AddForegroundRules(watches);
  AddDriveRules(watches);
  AddControlWordRules(watches);
  AddProfileRules(watches);
  AddDeviceRules(watches);
  AddAnswers(watches, guard);
  AddStartCommand(watches);
}

}  // namespace qdix::strict95
