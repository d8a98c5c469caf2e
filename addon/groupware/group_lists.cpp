#include "addon/groupware/group_lists.h"

namespace kesto {

namespace {

constexpr int kStep = 256;

// Where the path is, or would have to be inserted.
template <class T>
int positionOf(const Tableau<T>& list, std::string_view path) {
  int first = 0;
  int last = list.count();
  // Most come in their order.
  if (last > 0 && list.at(last - 1)->path.view() < path) {
    return last;
  }
  while (first < last) {
    const int middle = first + (last - first) / 2;
    if (list.at(middle)->path.view() < path) {
      first = middle + 1;
    } else {
      last = middle;
    }
  }
  return first;
}

template <class T>
class Filling : public GroupTree::Visitor {
 public:
  explicit Filling(Tableau<T>& list) : list_(list) {}

  // An element of the same path gives way.
  void visit(const char* path, const FileFacts& facts,
             const std::optional<FileFacts>& other) override {
    const int position = positionOf(list_, path);
    if (position < list_.count() && list_.at(position)->path == path) {
      list_.removeAndDelete(position);
    }
    if (isListed(facts)) {
      list_.insert(new T(path, facts, other), position);
    }
  }

 private:
  static bool isListed(const FileFacts& facts) {
    return std::is_same_v<T, EltGWget> || facts.writable;
  }

  Tableau<T>& list_;
};

template <class T>
void fill(Tableau<T>& list, GroupTree& tree, std::string_view filters, WalkWatch* watch) {
  list.clear();
  list.setStep(kStep);
  Filling<T> filling(list);
  tree.scan(filters, filling, watch);
}

// Calls each(element, whether it is selected).
template <class T, class Each>
void eachOf(Tableau<T>& list, const std::vector<int>& selected, const Each& each) {
  if (selected.empty()) {
    for (int i = 0; i < list.count(); ++i) {
      each(*list.at(i), false);
    }
  }
  for (const int position : selected) {
    each(*list.at(position), true);
  }
}

void press(SendButton button, EltGWsend& element, bool selected) {
  const bool conflict = element.request == SendRequest::kConflict;
  const bool worth_sending = selected || element.age != Age::kSame;
  switch (button) {
    case SendButton::kClear:
      if (!selected || !conflict) {
        element.request = SendRequest::kNothing;
      }
      break;
    case SendButton::kUpdate:
      if (!conflict && worth_sending) {
        element.request = selected ? SendRequest::kNothing : SendRequest::kUpdate;
      }
      break;
    case SendButton::kSendAndUnlock:
      if (!conflict && worth_sending) {
        element.request = SendRequest::kSend;
      }
      break;
  }
}

void press(GetButton button, EltGWget& element, bool selected) {
  const bool error = element.advice == Advice::kError;
  const bool worth_getting = selected || element.age != Age::kSame;
  switch (button) {
    case GetButton::kAsAdvised:
      if (!error) {
        element.request =
            element.advice == Advice::kRefresh ? GetRequest::kRefresh : GetRequest::kNothing;
      }
      break;
    case GetButton::kClear:
      element.request = GetRequest::kNothing;
      break;
    case GetButton::kRefresh:
      if (!error && worth_getting) {
        element.request = selected ? GetRequest::kNothing : GetRequest::kRefresh;
      }
      break;
    case GetButton::kGetAndLock:
      if (!error && !element.locked && worth_getting) {
        element.request = GetRequest::kGet;
      }
      break;
  }
}

}  // namespace

void fillSendList(SendList& list, GroupListing& files, const GroupRoots& roots,
                  std::string_view filters, WalkWatch* watch) {
  GroupTree tree(files, roots.project, roots.server);
  fill(list, tree, filters, watch);
}

void fillGetList(GetList& list, GroupListing& files, const GroupRoots& roots,
                 std::string_view filters, WalkWatch* watch) {
  GroupTree tree(files, roots.server, roots.project);
  fill(list, tree, filters, watch);
}

void pressButton(SendButton button, SendList& list, const std::vector<int>& selected) {
  eachOf(list, selected,
         [button](EltGWsend& element, bool chosen) { press(button, element, chosen); });
}

void pressButton(GetButton button, GetList& list, const std::vector<int>& selected) {
  eachOf(list, selected,
         [button](EltGWget& element, bool chosen) { press(button, element, chosen); });
}

}  // namespace kesto
