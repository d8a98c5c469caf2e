#include "addon/groupware/quick_add.h"

namespace kesto {
namespace {

constexpr char kSourceExtension[] = ".cpp";
constexpr char kContainerType[] = "SourcePool";

// A dot anywhere in what was typed counts, that of a folder too.
std::string completeName(const std::string& name) {
  return name.find('.') == std::string::npos ? name + kSourceExtension : name;
}

unsigned containerParent(const NodeAdding& project, unsigned current, ContainerLevel level) {
  if (level == ContainerLevel::kRoot) {
    return current != 0 ? project.top() : 0;
  }
  const unsigned parent = project.parent(current);
  const bool own = level == ContainerLevel::kSibling || parent == project.top();
  return own ? parent : project.parent(parent);
}

}  // namespace

QuickAddResult quickAdd(NodeAdding& project, unsigned current, const QuickAddFields& fields) {
  if (fields.name.empty()) {
    return {QuickAddRefusal::kNoName};
  }
  unsigned parent = fields.in_container ? containerParent(project, current, fields.level)
                                        : project.parent(current);
  if (parent == 0) {
    return {QuickAddRefusal::kNoParent};
  }
  if (fields.in_container) {
    if (fields.container.empty()) {
      return {QuickAddRefusal::kNoContainerName};
    }
    parent = project.add(parent, fields.container, kContainerType);
    if (parent == 0) {
      return {QuickAddRefusal::kNoContainer};
    }
  }
  return {QuickAddRefusal::kNone, project.add(parent, completeName(fields.name), {})};
}

const char* refusalText(QuickAddRefusal refusal) {
  switch (refusal) {
    case QuickAddRefusal::kNoName:
      return "You should specify a node name !";
    case QuickAddRefusal::kNoParent:
      return "No way to get parent node";
    case QuickAddRefusal::kNoContainerName:
      return "You should specify a container name !";
    case QuickAddRefusal::kNoContainer:
      return "No way to create container";
    case QuickAddRefusal::kNone:
      break;
  }
  return nullptr;
}

}  // namespace kesto
