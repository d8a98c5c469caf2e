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

unsigned ProjectNodes::add(unsigned parent, const std::string& name, const std::string& type) {
  const ComPtr<IIdeString> name_string = makeIdeString(name.c_str());
  const ComPtr<IIdeString> type_string =
      type.empty() ? ComPtr<IIdeString>() : makeIdeString(type.c_str());
  const bool made = name_string && (type.empty() || type_string);
  return service_ && made ? service_->AddNode(parent, name_string.get(), type_string.get()) : 0;
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
