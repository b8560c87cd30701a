#include "self_test/win32/system_questions.h"

namespace qdix::self_test::win32::questions {

void AskAboutSystem(Report& report) {
  AskForAddresses(report);
  AskForSizes(report);
  for (const auto questions : {AboutLibraries(), AboutControls(), AboutRanges(), AboutDrives(),
                               AboutSettings(), AboutControlWord()}) {
    for (const Question& question : questions) report.Ask(question.name, question.ask);
  }
}

}  // namespace qdix::self_test::win32::questions
