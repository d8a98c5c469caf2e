#include "addon/tasks/task_list.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include "addon/foundation/binary_form.h"
#include "addon/foundation/safe_write.h"
#include "addon/tasks/task_order.h"

namespace kesto {

TaskList* taskList = nullptr;

namespace {

constexpr std::int32_t kVersion = 0;
// Slots: a list may well have thousands of tasks.
constexpr int kStep = 500;

// What a file says of the list itself.
struct ListHead {
  std::int32_t version = 0;
  std::int32_t show[kTaskStates] = {};
  std::int32_t reverse = 0;
  std::int32_t order = 0;
};

int readHead(FILE* file, ListHead& head) {
  if (!readInt32(file, &head.version) || head.version != kVersion) {
    return 0;
  }
  for (std::int32_t& flag : head.show) {
    if (!readInt32(file, &flag)) {
      return 0;
    }
  }
  return readInt32(file, &head.reverse) && readInt32(file, &head.order);
}

// The elements of a table's record, as they come: none is made room for ahead.
template <class T>
int readElements(FILE* file, TypedTableau<T>& elements) {
  std::int32_t count = 0;
  if (!readInt32(file, &count) || count < 0) {
    return 0;
  }
  for (std::int32_t i = 0; i < count; ++i) {
    auto element = std::make_unique<T>();
    if (!element->fRead(file)) {
      return 0;
    }
    elements.append(element.release());
  }
  return 1;
}

}  // namespace

String taskFilePath(std::string_view project_file) {
  String path(project_file);
  path += ".tsk";
  return path;
}

TaskList::TaskList(FileSystem& files) : files_(files) {
  setStep(kStep);
  view_.setStep(kStep);
  view_.setOwns(false);
}

void TaskList::clear() {
  view_.clear();
  BasicTableau::clear();
}

void TaskList::removeTask(Task* task) {
  if (const int row = view_.indexOf(task); row != kErrTab) {
    view_.remove(row);
  }
  if (const int position = indexOf(task); position != kErrTab) {
    removeAndDelete(position);
  }
}

void TaskList::rebuildView() {
  view_.clear();
  for (int i = 0; i < count(); ++i) {
    if (show[at(i)->state] != 0) {
      view_.append(at(i));
    }
  }
  sortTasks(view_, order, reverse != 0);
}

void TaskList::setPath(std::string_view path) {
  path_ = path;
  read_whole_ = false;
}

void TaskList::load() {
  endReplacing(files_, path_);
  read_whole_ = files_.readRecord(path_, *this);
}

void TaskList::save() {
  if (path_.empty()) {
    return;
  }
  SafeFile file(files_, path_.view());
  file.writeRecord(*this);
  String kept;
  if (!file.finish() || !keepUnread(kept)) {
    return;
  }
  if (file.put()) {
    read_whole_ = true;
  } else if (!kept.empty()) {
    files_.remove(kept);
  }
}

bool TaskList::keepUnread(String& kept) {
  if (read_whole_ || !files_.status(path_)) {
    return true;
  }
  constexpr int kMostKept = 9;
  String name = path_;
  name += ".bak";
  for (int number = 2; files_.status(name) && number <= kMostKept; ++number) {
    name = path_;
    name += ".bak";
    name += number;
  }
  const bool free = !files_.status(name);
  const bool copied = files_.copy(path_, name);
  if (free && copied) {
    kept = name;
  } else if (free) {
    files_.remove(name);
  }
  return copied;
}

String TaskList::joinedTypes() const {
  std::string joined;
  for (int i = 0; i < types.count() && joined.size() <= TaskSettings::kTypesLimit; ++i) {
    joined += i > 0 ? ";" : "";
    joined += types[i]->view();
  }
  return String(std::string_view(joined).substr(0, TaskSettings::kTypesLimit));
}

void TaskList::setTypes(std::string_view joined) {
  types.clear();
  joined = joined.substr(0, TaskSettings::kTypesLimit);
  while (!joined.empty()) {
    const std::string_view piece = joined.substr(0, joined.find(';'));
    types.append(new String(piece));
    joined.remove_prefix(std::min(joined.size(), piece.size() + 1));
  }
}

int TaskList::fWrite(FILE* file) const {
  int written = writeInt32(file, kVersion);
  for (const std::int32_t flag : show) {
    written = written && writeInt32(file, flag);
  }
  return written && writeInt32(file, reverse) && writeInt32(file, order) && types.fWrite(file) &&
         BasicTableau::fWrite(file);
}

int TaskList::fRead(FILE* file) {
  ListHead head;
  if (!readHead(file, head)) {
    return 0;
  }
  std::copy(std::begin(head.show), std::end(head.show), show);
  reverse = head.reverse;
  order = head.order >= 0 && head.order < kTaskOrders ? head.order : kDefaultTaskOrder;
  clear();
  const int read = readTypes(file) && readElements(file, *this) && getc(file) == EOF;
  rebuildView();
  return read;
}

// Types that are not whole leave those that are there.
int TaskList::readTypes(FILE* file) {
  Tableau<String> read;
  if (!readElements(file, read)) {
    return 0;
  }
  types.clear();
  for (int i = 0; i < read.count(); ++i) {
    types.append(read[i]);
  }
  read.setOwns(false);
  return 1;
}

}  // namespace kesto
