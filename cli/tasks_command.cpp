// The tasks of a project: "tasks".
#include <charconv>

#include "addon/foundation/path.h"
#include "addon/tasks/task_list.h"
#include "cli/commands.h"
#include "cli/place.h"
#include "cli/told_files.h"

namespace kesto::cli {
namespace {

constexpr const char* kOrders[kTaskOrders] = {"state", "start", "end", "priority", "type"};

bool isDay(int year, int month, int day) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
  return year >= 1601 && year <= 9999 && month >= 1 && month <= 12 && day >= 1 &&
         day <= kDays[month - 1] + (month == 2 && leap ? 1 : 0);
}

// Years first: what sorts, and what no country reads in another way.
class PlainDates : public DateFormat {
 public:
  std::string shortDate(const TaskDate& date) const override {
    if (!isDay(date.year, date.month, date.day)) {
      return {};
    }
    char text[16] = "";
    snprintf(text, sizeof text, "%04u-%02u-%02u", date.year % 10000U, date.month % 100U,
             date.day % 100U);
    return text;
  }
};

// False for what is no day in that form.
bool readDay(std::string_view text, TaskDate& date) {
  constexpr std::size_t kSize = 10;
  constexpr struct {
    std::size_t at;
    std::size_t size;
    std::uint16_t TaskDate::*part;
  } kParts[] = {{0, 4, &TaskDate::year}, {5, 2, &TaskDate::month}, {8, 2, &TaskDate::day}};
  if (text.size() != kSize || text[4] != '-' || text[7] != '-') {
    return false;
  }
  for (const auto& part : kParts) {
    const char* const begin = text.data() + part.at;
    const auto [end, fault] = std::from_chars(begin, begin + part.size, date.*part.part);
    if (fault != std::errc() || end != begin + part.size) {
      return false;
    }
  }
  return isDay(date.year, date.month, date.day);
}

// States by their words, "to do" without its blank as well; false for another word.
bool readStates(std::string_view list, int (&flags)[kTaskStates]) {
  while (!list.empty()) {
    // A repeated option is joined with ";".
    const std::string_view word = list.substr(0, list.find_first_of(",;"));
    list.remove_prefix(std::min(list.size(), word.size() + 1));
    int state = 0;
    while (state < kTaskStates && word != taskStateWord(state) &&
           !(state == kToDo && word == "todo")) {
      ++state;
    }
    if (state == kTaskStates) {
      return false;
    }
    flags[state] = 1;
  }
  return true;
}

class TaskWriter {
 public:
  TaskWriter(Session& session, TaskList& tasks) : session_(session), tasks_(tasks) {}

  int list() {
    tasks_.rebuildView();
    write(tasks_.view());
    return session_.result(tasks_.view().count() > 0);
  }

  int report(const TaskDate& day) {
    Tableau<Task> due;
    tasks_.dueTasks(due, day);
    if (session_.output().json()) {
      write(due);
      return session_.result(due.count() > 0);
    }
    String report;
    const bool any = tasks_.todayReport(report, day, PlainDates()) != 0;
    std::string text(report.view());
    std::erase(text, '\r');
    session_.output().line(shownApart(text, '\n'));
    return session_.result(any);
  }

  int counts() {
    int of_state[kTaskStates] = {};
    for (int i = 0; i < tasks_.count(); ++i) {
      ++of_state[tasks_.at(i)->state];
    }
    Output& output = session_.output();
    for (int state = 0; state < kTaskStates; ++state) {
      if (output.json()) {
        output.add(Row().text("state", taskStateWord(state)).number("count", of_state[state]));
      } else {
        output.line(taskStateWord(state) + ('\t' + std::to_string(of_state[state])));
      }
    }
    return session_.result(tasks_.count() > 0);
  }

 private:
  // Texts that were written at different times may differ in their encoding.
  std::string shownApart(std::string_view texts, char separator) const {
    std::string all;
    for (;;) {
      const std::size_t end = texts.find(separator);
      all += session_.output().shown(texts.substr(0, end));
      if (end == texts.npos) {
        return all;
      }
      all += separator;
      texts.remove_prefix(end + 1);
    }
  }

  void write(const Tableau<Task>& tasks) {
    const PlainDates dates;
    Output& output = session_.output();
    for (int i = 0; i < tasks.count() && output.open(); ++i) {
      const Task& task = *tasks.at(i);
      if (output.json()) {
        output.add(Row()
                       .text("name", task.name.view())
                       .text("type", task.type.view())
                       .text("state", taskStateWord(task.state))
                       .flag("public", task.is_public != 0)
                       .number("priority", task.priority)
                       .text("start", dates.shortDate(task.start))
                       .text("end", dates.shortDate(task.end))
                       .text("text", task.text.view()));
      } else {
        std::string row;
        task.appendRow(row, dates);
        output.line(shownApart(row, '\t'));
      }
    }
  }

  Session& session_;
  TaskList& tasks_;
};

// What the command line says of the list. False, and told, for what makes no sense.
bool takeOptions(Session& session, const Request& request, TaskList& tasks, TaskDate& day) {
  Complaints& complaints = session.complaints();
  int states[kTaskStates] = {};
  if (!readStates(request.list("states"), states)) {
    complaints.tell({}, "--states takes todo, coded, tested and ended, with \",\" between them");
  }
  for (int state = 0; request.has("states") && state < kTaskStates; ++state) {
    tasks.show[state] = states[state];
    tasks.settings.flash[state].value = states[state];
  }
  if (request.has("sort")) {
    tasks.order = 0;
    while (tasks.order < kTaskOrders && request.value("sort") != kOrders[tasks.order]) {
      ++tasks.order;
    }
    if (tasks.order == kTaskOrders) {
      complaints.tell({}, "--sort takes state, start, end, priority or type");
    }
  }
  tasks.reverse = request.has("reverse") ? 1 - tasks.reverse : tasks.reverse;
  if (request.has("day") && !readDay(request.value("day"), day)) {
    complaints.tell({}, "--day takes a day as in 1996-03-31, no \"" + request.value("day") + '"');
  }
  return !complaints.any();
}

}  // namespace

int runTasks(Session& session, const Request& request) {
  Place place(session);
  if (!place.open(request.operands[0])) {
    return kError;
  }
  ToldFiles files(session);
  TaskList tasks(files);
  const String path = taskFilePath(place.file());
  const bool there = files.status(path).has_value();
  const bool whole = !there || files.readRecord(path, tasks);
  TaskDate day = session.system().utcToday();
  if (!takeOptions(session, request, tasks, day)) {
    return kError;
  }
  if (!whole) {
    session.complaints().tell(session.shown(path.view()),
                              "is no whole task file: these are the tasks before the fault");
  }
  TaskWriter writer(session, tasks);
  if (request.has("counts")) {
    return writer.counts();
  }
  return request.has("report") || request.has("day") ? writer.report(day) : writer.list();
}

}  // namespace kesto::cli
