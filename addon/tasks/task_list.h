// The tasks of the open project, in stored order, and a view of them, filtered and sorted.
// One object lives from the add-on's start to its end. It owns the tasks; the view points
// at them, so that whoever removes one rebuilds the view, or removes it with removeTask.
// User-interface thread only.
#pragma once

#include <cstdint>
#include <string_view>

#include "addon/foundation/file_system.h"
#include "addon/foundation/tableau.h"
#include "addon/tasks/task.h"
#include "addon/tasks/task_order.h"
#include "addon/tasks/task_settings.h"

namespace kesto {

class TaskList : public Ensemble<Task> {
 public:
  // The file system must outlive the list.
  explicit TaskList(FileSystem& files);

  // Both the tasks and the view.
  void clear();
  // Takes the task out of both and deletes it.
  void removeTask(Task* task);
  void rebuildView();
  const Tableau<Task>& view() const { return view_; }

  const String& path() const { return path_; }
  // Until the next load, what lies there counts as not read.
  void setPath(std::string_view path);
  // Reads the file at path. Without one, or with one of another version, the list stays as
  // it is. What it holds of a broken file is what was whole.
  void load();
  // Puts the whole list at path, or leaves what is there as it was; nothing is told. A file
  // that was not read whole is kept beside before, as the first free of NAME.bak, NAME.bak2
  // and so on up to NAME.bak9.
  void save();

  // Replaces due, which does not own, by the tasks whose days enclose today, of the states of
  // the flash, in the order of the view, which stays as it is.
  void dueTasks(Tableau<Task>& due, const TaskDate& today) const;
  // Appends what is to be read of these tasks. 1 when out is not empty by then, else 0; out then
  // says so.
  int todayReport(String& out, const TaskDate& today, const DateFormat& format) const;

  // The types as one text, ";" between them, cut at TaskSettings::kTypesLimit; and back. An empty
  // piece at the end is none.
  String joinedTypes() const;
  void setTypes(std::string_view joined);

  // The whole task file.
  int fWrite(FILE* file) const override;
  // What a broken file held whole stays. 0 unless all of the file was read; of another
  // version nothing is touched.
  int fRead(FILE* file) override;

  std::int32_t show[kTaskStates] = {1, 1, 1, 1};  // not 0: the view has tasks of the state
  std::int32_t reverse = 0;                       // not 0: the order is turned round
  std::int32_t order = kDefaultTaskOrder;
  TaskSettings settings;
  Tableau<String> types;

 private:
  int readTypes(FILE* file);
  // False when it had to be kept and was not. kept is the file that was made.
  bool keepUnread(String& kept);

  FileSystem& files_;
  Tableau<Task> view_;
  String path_;
  bool read_whole_ = false;
};

// Where those of a project are kept.
String taskFilePath(std::string_view project_file);

// Null outside a session.
extern TaskList* taskList;

}  // namespace kesto
