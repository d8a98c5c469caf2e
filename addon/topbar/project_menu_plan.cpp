#include "addon/topbar/project_menu_plan.h"

#include <algorithm>

#include "addon/foundation/path.h"

namespace kesto {
namespace {

constexpr char kExecutableType[] = ".exe";

// Types are compared as the IDE does, without regard to case.
std::string typeOf(const NodeTree& tree, unsigned node) {
  std::string type = tree.type(node);
  lowerAscii(type.data());
  return type;
}

bool isSkipped(const std::string& name) {
  return name.starts_with('#');
}

bool isContainerType(const std::string& type) {
  return type == kExecutableType || type == ".dll" || type == ".lib" || !type.starts_with('.');
}

// Of a node that is no container.
bool isFileType(const std::string& type) {
  return type.starts_with('.') && type != ".lib" && type != ".obj";
}

std::string titleOf(const std::string& name) {
  return std::string(fileNamePart(name));
}

class Builder {
 public:
  Builder(int column_size, BarMenuPlan& plan) : column_size_(column_size), plan_(plan) {}

  int createPopup() {
    plan_.popups.emplace_back();
    return static_cast<int>(plan_.popups.size()) - 1;
  }
  BarPopup& popup(int position) { return plan_.popups[static_cast<size_t>(position)]; }

  void addTool(unsigned node, const std::string& name) {
    const int id = kFirstToolId + static_cast<int>(plan_.tools.size());
    if (id <= kLastToolId) {
      popup(BarMenuPlan::kMain)
          .items.push_back({BarItem::Kind::kCommand, toolText(titleOf(name)), id, 0, false});
      plan_.tools.push_back(node);
    }
  }
  bool hasRoomForFiles() const { return nextFileId() <= kLastFileId; }
  void addFile(unsigned node, const std::string& name, int to) {
    append(to, {BarItem::Kind::kCommand, titleOf(name), nextFileId(), 0, false});
    plan_.files.push_back({node, to});
  }
  void addTarget(unsigned node, const std::string& name, int target, int to) {
    append(to, {BarItem::Kind::kPopup, titleOf(name), 0, target, false});
    plan_.targets.push_back({node, target});
  }
  // An entry of the menu bar itself, which has no columns.
  void addBarTarget(unsigned node, const std::string& name, int target) {
    popup(BarMenuPlan::kBar)
        .items.push_back({BarItem::Kind::kPopup, titleOf(name), 0, target, false});
    plan_.targets.push_back({node, target});
  }
  void removeEmptyTargets() {
    const auto is_empty = [&](int position) {
      return position != BarMenuPlan::kMain && popup(position).items.empty();
    };
    std::erase_if(popup(BarMenuPlan::kBar).items, [&](const BarItem& item) {
      return item.kind == BarItem::Kind::kPopup && is_empty(item.popup);
    });
    std::erase_if(plan_.targets, [&](const PlacedNode& target) { return is_empty(target.popup); });
  }

 private:
  int nextFileId() const { return kFirstFileId + static_cast<int>(plan_.files.size()); }
  void append(int to, BarItem item) {
    std::vector<BarItem>& items = popup(to).items;
    const int count = static_cast<int>(items.size());
    item.column_break = column_size_ > 0 && count > 0 && count % column_size_ == 0;
    items.push_back(std::move(item));
  }

  int column_size_;
  BarMenuPlan& plan_;
};

constexpr int kNotCreated = -1;

// One level of the tree on the way down.
struct Level {
  unsigned next;       // node to visit next, 0 at the level's end
  int popup;           // that the level's items go into
  unsigned container;  // whose children these are, 0 at the top
};

class HierarchicalWalk {
 public:
  HierarchicalWalk(const NodeTree& tree, Builder& builder) : tree_(tree), builder_(builder) {}

  void run() {
    levels_.push_back({tree_.top(), BarMenuPlan::kBar, 0});
    while (!levels_.empty()) {
      const unsigned node = levels_.back().next;
      if (node == 0) {
        finishLevel();
      } else {
        levels_.back().next = tree_.nextSibling(node);
        visit(node);
      }
    }
  }

 private:
  void visit(unsigned node) {
    const std::string name = tree_.name(node);
    if (isSkipped(name)) {
      return;
    }
    const std::string type = typeOf(tree_, node);
    if (type == kExecutableType) {
      builder_.addTool(node, name);
    }
    const unsigned child = isContainerType(type) ? tree_.firstChild(node) : 0;
    if (child != 0) {
      if (levels_.size() <= kDeepestMenu) {
        levels_.push_back({child, kNotCreated, node});
      }
    } else if (isFileType(type) && type != kExecutableType && builder_.hasRoomForFiles()) {
      builder_.addFile(node, name, createdPopup());
    }
  }

  // A submenu comes with its first item.
  int createdPopup() {
    Level& level = levels_.back();
    if (level.popup == kNotCreated) {
      level.popup = builder_.createPopup();
    }
    return level.popup;
  }

  void finishLevel() {
    const Level finished = levels_.back();
    levels_.pop_back();
    if (!levels_.empty() && finished.popup != kNotCreated) {
      builder_.addTarget(finished.container, tree_.name(finished.container), finished.popup,
                         createdPopup());
    }
  }

  const NodeTree& tree_;
  Builder& builder_;
  std::vector<Level> levels_;
};

}  // namespace

void planLinearMenus(const NodeTree& tree, int column_size, BarMenuPlan& plan) {
  Builder builder(column_size, plan);
  std::vector<Level> levels = {{tree.top(), BarMenuPlan::kBar, 0}};
  while (!levels.empty()) {
    const unsigned node = levels.back().next;
    if (node == 0) {
      levels.pop_back();
      continue;
    }
    levels.back().next = tree.nextSibling(node);
    const std::string name = tree.name(node);
    if (isSkipped(name)) {
      continue;
    }
    const std::string type = typeOf(tree, node);
    if (isContainerType(type)) {
      const int popup = builder.createPopup();
      builder.addBarTarget(node, name, popup);
      if (type == kExecutableType) {
        builder.addTool(node, name);
      }
      levels.push_back({tree.firstChild(node), popup, node});
    } else if (isFileType(type) && builder.hasRoomForFiles()) {
      builder.addFile(node, name, levels.back().popup);
    }
  }
  builder.removeEmptyTargets();
}

void planHierarchicalMenus(const NodeTree& tree, int column_size, BarMenuPlan& plan) {
  Builder builder(column_size, plan);
  HierarchicalWalk(tree, builder).run();
}

}  // namespace kesto
