#include "tests/addon/fake_ide.h"

#include <algorithm>
#include <cstring>

namespace fake {

int live_references = 0;

int STDMETHODCALLTYPE Stream::Open(IIdeString*, int mode) {
  source_.modes.push_back(mode);
  if (source_.opened != nullptr) {
    source_.opened();
  }
  position_ = 0;
  text_ = mode == kStreamFile ? source_.disk : source_.in_editor ? source_.buffer : source_.disk;
  return 1;
}

long STDMETHODCALLTYPE Stream::Seek(long offset, int origin) {
  position_ = offset + (origin == kStreamFromEnd ? static_cast<long>(text_.size()) : 0);
  return position_;
}

long STDMETHODCALLTYPE Stream::Read(void* buffer, long count) {
  if (source_.negative_reads > 0) {
    --source_.negative_reads;
    return -1;
  }
  const long left = std::min(count, static_cast<long>(text_.size()) - position_);
  memcpy(buffer, text_.data() + position_, static_cast<size_t>(left));
  position_ += left;
  return left;
}

void Project::open(const std::string& file) {
  project.file = file;
  for (IProjectClient* client : std::vector<IProjectClient*>(clients)) {
    client->ProjectOpened(&project);
  }
}

void Project::close() {
  for (IProjectClient* client : std::vector<IProjectClient*>(clients)) {
    client->ProjectClosed();
  }
  loaded = false;
}

ProjectNode Project::after(ProjectNode node, ProjectNode parent) const {
  for (ProjectNode next = node + 1; next <= nodes.size(); ++next) {
    if (exists(next) && nodes[next - 1].parent == parent) {
      return next;
    }
  }
  return 0;
}

int STDMETHODCALLTYPE Project::GetOption(IIdeString* name, const void** data) {
  asked.emplace_back(name->GetText());
  const auto option = options.find(name->GetText());
  if (option == options.end()) {
    return 0;
  }
  *data = option->second.data();
  return static_cast<int>(option->second.size());
}

OptionHandle STDMETHODCALLTYPE Project::SetOption(IIdeString* name, const void* data, int size) {
  pending_name_ = name->GetText();
  pending_.assign(static_cast<const char*>(data), static_cast<size_t>(size));
  return 9;
}

void STDMETHODCALLTYPE Project::CommitOption(OptionHandle option) {
  if (option == 9) {
    committed.push_back(pending_name_);
    options[pending_name_] = pending_;
  }
}

Ide::Ide() {
  services = {
      {ideapi::kEditorService.Data1, &editor},   {ideapi::kStatusLineService.Data1, &status_line},
      {ideapi::kMakeService.Data1, &make},       {ideapi::kOptionsService.Data1, &options},
      {ideapi::kProjectService.Data1, &project}, {ideapi::kProjectSaveService.Data1, &project_save},
      {ideapi::kToolService.Data1, &tools},      {ideapi::kMessageService.Data1, &messages}};
}

HRESULT STDMETHODCALLTYPE Ide::QueryInterface(REFIID id, void** result) {
  const auto service = services.find(id.Data1);
  if (service == services.end() || !IsEqualGUID(id, ideapi::serviceId(id.Data1))) {
    // Callers must not use what a failed query leaves behind.
    *result = reinterpret_cast<void*>(1);
    return E_NOINTERFACE;
  }
  service->second->AddRef();
  *result = service->second;
  return S_OK;
}

}  // namespace fake
