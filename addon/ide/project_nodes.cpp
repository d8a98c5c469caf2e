#include "addon/ide/project_nodes.h"

namespace kesto {
namespace {

std::string taken(IIdeString* string) {
  const std::unique_ptr<char[]> text = takeIdeString(string);
  return text != nullptr ? text.get() : "";
}

}  // namespace

std::string ProjectNodes::name(unsigned node) const {
  return service_ ? taken(service_->GetNodeName(node)) : "";
}

std::string ProjectNodes::type(unsigned node) const {
  return service_ ? taken(service_->GetNodeType(node)) : "";
}

std::string ProjectNodes::description(unsigned node) const {
  return service_ ? taken(service_->GetNodeDescription(node)) : "";
}

bool ProjectNodes::exists(unsigned node) const {
  return service_ && takeIdeString(service_->GetNodeName(node)) != nullptr;
}

void ProjectNodes::remove(unsigned node) const {
  if (service_) {
    service_->RemoveNode(node);
  }
}

int ProjectNodes::openAlternatively(unsigned node) const {
  return service_ ? service_->OpenNode(node, 1) : static_cast<int>(kToolNotHandled);
}

}  // namespace kesto
