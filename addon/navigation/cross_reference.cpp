#include "addon/navigation/cross_reference.h"

#include "addon/ide/report_header.h"
#include "addon/navigation/cross_header.h"

namespace kesto {
namespace {

constexpr short kColumn = 1;
constexpr int kMessageKind = 5;

}  // namespace

void CrossReferenceMessages::write(const char* name, const Tableau<QuickResu>& references,
                                   bool whole) {
  if (!group_.open()) {
    return;
  }
  group_.addHeader(
      crossReferenceHeader(frameProject(), name, currentDate(), currentTime(), references.count()));
  for (int i = 0; i < references.count(); ++i) {
    const QuickResu& reference = *references.at(i);
    group_.addLocated(reference.text(), reference.file(), reference.line(), kColumn, kMessageKind);
  }
  if (!whole) {
    group_.add("The search was stopped: there may be more");
  }
}

}  // namespace kesto
