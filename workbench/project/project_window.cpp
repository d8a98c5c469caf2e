#include "workbench/project/project_window.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "ideapi/ide_identifiers.h"
#include "workbench/windows/command_ids.h"
#include "workbench/windows/handles.h"
#include "workbench/windows/path_text.h"

namespace workbench {
namespace {

constexpr std::size_t kMostShown = 260;  // characters of one node
// What a notification of the tree set off: a command, 0 for the context menu, or this.
constexpr UINT kLater = WM_APP + 1;
constexpr int kScroll = -1;  // back to where it was
constexpr int kRenamed = 1;

// A folder of the disk and a file are shown by their last part.
std::string shortName(const NodeInfo& node) {
  return std::string(fileName(node.name));
}

// Among what is delivered it matters where a file comes from.
std::string shownText(const Project& project, const NodeInfo& node) {
  const NodeInfo* parent = project.node(node.parent);
  const bool delivered = parent != nullptr && parent->type == ProjectTree::kDeliveryType &&
                         project.tree().isPathName(node.parent, node.name, node.type);
  std::string text = delivered ? relativePath(project.folder(), node.name) : shortName(node);
  if (!node.description.empty()) {
    text += "  [";
    text += node.description;
    text += ']';
  }
  return text.substr(0, kMostShown);
}

}  // namespace

ProjectWindow::ProjectWindow(const Project& project, ProjectWindowHost& host)
    : MdiPane(ideapi::kProjectClass, "Project"), project_(project), host_(host) {}

bool ProjectWindow::createControls() {
  InitCommonControls();
  tree_ = CreateWindowExA(0, WC_TREEVIEWA, nullptr,
                          WS_CHILD | WS_VISIBLE | TVS_HASLINES | TVS_HASBUTTONS | TVS_LINESATROOT |
                              TVS_SHOWSELALWAYS | TVS_EDITLABELS,
                          0, 0, 0, 0, window(), nullptr, instance(), nullptr);
  if (tree_ == nullptr) {
    return false;
  }
  SendMessageA(tree_, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), 0);
  fill();
  restore();
  return true;
}

void ProjectWindow::remember() {
  expanded_.clear();
  for (const auto& [node, item] : items_) {
    TVITEMA state = {};
    state.mask = TVIF_STATE | TVIF_HANDLE;
    state.hItem = item;
    state.stateMask = TVIS_EXPANDED;
    if (SendMessageA(tree_, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&state)) != 0 &&
        (state.state & TVIS_EXPANDED) != 0) {
      expanded_.push_back(node);
    }
  }
  selected_ = selected();
  first_visible_ = nodeOf(TreeView_GetFirstVisible(tree_));
  left_ = true;
}

void ProjectWindow::restore() {
  if (!left_) {
    return;
  }
  for (const auto& [node, item] : items_) {
    const bool open = std::find(expanded_.begin(), expanded_.end(), node) != expanded_.end();
    TreeView_Expand(tree_, item, open ? TVE_EXPAND : TVE_COLLAPSE);
  }
  TreeView_SelectItem(tree_, itemOf(selected_));
  // The tree has its size, and so its scroll place, only later.
  later(kScroll, 0);
}

HTREEITEM ProjectWindow::itemOf(unsigned int node) const {
  const auto found = items_.find(node);
  return found != items_.end() ? found->second : nullptr;
}

void ProjectWindow::paneGone() {
  tree_ = nullptr;
  items_.clear();
}

RECT ProjectWindow::firstPlace(const RECT& client) const {
  const LONG width = std::min(client.right, std::max(260L, client.right / 4));
  return {0, 0, width, std::max(200L, client.bottom * 3 / 4)};
}

void ProjectWindow::layOut(int width, int height) {
  MoveWindow(tree_, 0, 0, width, height, TRUE);
}

void ProjectWindow::projectChanged() {
  left_ = false;
  if (tree_ != nullptr) {
    fill();
  }
}

void ProjectWindow::fill() {
  SendMessageA(tree_, WM_SETREDRAW, FALSE, 0);
  TreeView_DeleteAllItems(tree_);
  items_.clear();
  insertAll(TVI_ROOT, project_.tree().top);
  // A look at the targets; what is inside them opens on demand.
  for (const unsigned int id : project_.tree().top) {
    TreeView_Expand(tree_, items_[id], TVE_EXPAND);
  }
  if (project_.top() != 0) {
    TreeView_SelectItem(tree_, items_[project_.top()]);
    TreeView_EnsureVisible(tree_, items_[project_.top()]);
  }
  SendMessageA(tree_, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(tree_, nullptr, TRUE);
  const std::string title =
      project_.loaded() ? "Project : " + std::string(fileName(project_.file())) : "Project";
  SetWindowTextA(window(), title.c_str());
}

HTREEITEM ProjectWindow::insert(HTREEITEM parent, const NodeInfo& node) {
  std::string text = shownText(project_, node);
  TVINSERTSTRUCTA info = {};
  info.hParent = parent;
  info.hInsertAfter = TVI_LAST;
  info.item.mask = TVIF_TEXT | TVIF_PARAM;
  info.item.pszText = text.data();
  info.item.lParam = static_cast<LPARAM>(node.id);
  const auto item = reinterpret_cast<HTREEITEM>(
      SendMessageA(tree_, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&info)));
  items_[node.id] = item;
  return item;
}

// Nodes nest within bounds, so this does too.
void ProjectWindow::insertAll(HTREEITEM parent, const std::vector<unsigned int>& nodes) {
  for (const unsigned int id : nodes) {
    const NodeInfo* node = project_.node(id);
    insertAll(insert(parent, *node), node->children);
  }
}

void ProjectWindow::nodeAdded(unsigned int id) {
  const NodeInfo* node = project_.node(id);
  if (tree_ == nullptr || node == nullptr) {
    return;
  }
  const HTREEITEM parent = node->parent == 0 ? TVI_ROOT : items_[node->parent];
  const HTREEITEM item = insert(parent, *node);
  if (node->parent != 0) {
    // The first child brings the button; the system notices only when told.
    InvalidateRect(tree_, nullptr, TRUE);
  }
  if (active()) {
    TreeView_EnsureVisible(tree_, item);
  }
}

void ProjectWindow::nodeRemoved(unsigned int id) {
  const auto found = items_.find(id);
  if (tree_ != nullptr && found != items_.end()) {
    // What was below it is gone from the project too.
    TreeView_DeleteItem(tree_, found->second);
    std::erase_if(items_,
                  [this](const auto& each) { return project_.node(each.first) == nullptr; });
  }
}

void ProjectWindow::nodeChanged(unsigned int id) {
  const auto found = items_.find(id);
  const NodeInfo* node = project_.node(id);
  if (tree_ == nullptr || found == items_.end() || node == nullptr) {
    return;
  }
  std::string text = shownText(project_, *node);
  TVITEMA item = {};
  item.mask = TVIF_TEXT | TVIF_HANDLE;
  item.hItem = found->second;
  item.pszText = text.data();
  SendMessageA(tree_, TVM_SETITEMA, 0, reinterpret_cast<LPARAM>(&item));
}

unsigned int ProjectWindow::selected() const {
  return nodeOf(tree_ != nullptr ? TreeView_GetSelection(tree_) : nullptr);
}

void ProjectWindow::select(unsigned int node) {
  if (HTREEITEM item = itemOf(node)) {
    TreeView_SelectItem(tree_, item);
    TreeView_EnsureVisible(tree_, item);
  }
}

unsigned int ProjectWindow::nodeOf(HTREEITEM of) const {
  if (of == nullptr) {
    return 0;
  }
  TVITEMA item = {};
  item.mask = TVIF_PARAM | TVIF_HANDLE;
  item.hItem = of;
  SendMessageA(tree_, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item));
  return static_cast<unsigned int>(item.lParam);
}

void ProjectWindow::beginRename() {
  const auto found = items_.find(selected());
  if (tree_ != nullptr && found != items_.end()) {
    SetFocus(tree_);
    SendMessageA(tree_, TVM_EDITLABELA, 0, reinterpret_cast<LPARAM>(found->second));
  }
}

bool ProjectWindow::paneMessage(UINT message, WPARAM w, LPARAM l, LRESULT* result) {
  if (message == WM_NOTIFY && reinterpret_cast<const NMHDR*>(l)->hwndFrom == tree_) {
    *result = notified(*reinterpret_cast<const NMHDR*>(l));
    return true;
  }
  if (message == WM_CLOSE && tree_ != nullptr) {
    remember();
    return false;
  }
  if (message == kLater) {
    carryOut(static_cast<int>(w), l);
    *result = 0;
    return true;
  }
  if (message == WM_CONTEXTMENU && reinterpret_cast<HWND>(w) == tree_) {
    POINT place = {GET_X_LPARAM(l), GET_Y_LPARAM(l)};
    if (place.x == -1 && place.y == -1) {
      place = {20, 20};
      ClientToScreen(tree_, &place);
    }
    contextMenu(place);
    *result = 0;
    return true;
  }
  return false;
}

// The tree notifies from within its own messages, and a menu or box may see the program
// close: what could show one waits until the tree has done.
void ProjectWindow::later(int command, LPARAM detail) {
  PostMessageA(window(), kLater, static_cast<WPARAM>(command), detail);
}

void ProjectWindow::carryOut(int command, LPARAM detail) {
  if (command == kScroll) {
    if (const HTREEITEM first = itemOf(first_visible_)) {
      // Opening branches has scrolled the tree, and Wine goes only down from there.
      SendMessageA(tree_, WM_VSCROLL, SB_TOP, 0);
      SendMessageA(tree_, TVM_SELECTITEM, TVGN_FIRSTVISIBLE, reinterpret_cast<LPARAM>(first));
    }
  } else if (command == 0) {
    contextMenu({GET_X_LPARAM(detail), GET_Y_LPARAM(detail)});
  } else if (command == kRenamed) {
    host_.renameFromWindow(std::exchange(renamed_node_, 0), std::exchange(new_name_, {}));
  } else if (command != CM_NODE_OPEN) {
    host_.projectWindowCommand(command);
  } else if (selected() != 0) {
    host_.openNode(selected(), detail != 0);
  }
}

LRESULT ProjectWindow::notified(const NMHDR& header) {
  switch (header.code) {
    case NM_DBLCLK: {
      const NodeInfo* node = project_.node(selected());
      if (node != nullptr && node->children.empty()) {
        later(CM_NODE_OPEN, 0);
        return 1;
      }
      return 0;  // opens or closes the branch
    }
    case NM_RCLICK: {
      TVHITTESTINFO hit = {};
      GetCursorPos(&hit.pt);
      POINT place = hit.pt;
      ScreenToClient(tree_, &hit.pt);
      if (HTREEITEM item = TreeView_HitTest(tree_, &hit)) {
        TreeView_SelectItem(tree_, item);
      }
      later(0, MAKELPARAM(place.x, place.y));
      return 1;
    }
    case TVN_KEYDOWN:
      keyPressed(reinterpret_cast<const NMTVKEYDOWN*>(&header)->wVKey);
      return 0;
    case TVN_BEGINLABELEDITA:
    case TVN_BEGINLABELEDITW:
      // What may not be renamed is not edited.
      if (!host_.projectCommandEnabled(CM_NODE_RENAME)) {
        return 1;
      }
      beginEdit();
      return 0;
    case TVN_ENDLABELEDITA: {
      const char* text = reinterpret_cast<const NMTVDISPINFOA*>(&header)->item.pszText;
      if (text != nullptr && *text != '\0') {
        renamed_node_ = selected();
        new_name_ = text;
        later(kRenamed, 0);
      }
      return 0;  // the text follows the node
    }
    default:
      return 0;
  }
}

// The description is no part of the name.
void ProjectWindow::beginEdit() {
  const NodeInfo* node = project_.node(selected());
  HWND edit = reinterpret_cast<HWND>(SendMessageA(tree_, TVM_GETEDITCONTROL, 0, 0));
  if (node != nullptr && edit != nullptr) {
    SetWindowTextA(edit, shortName(*node).c_str());
    SendMessageA(edit, EM_SETSEL, 0, -1);
  }
}

void ProjectWindow::keyPressed(WORD key) {
  const bool alternative = GetKeyState(VK_CONTROL) < 0;
  switch (key) {
    case VK_RETURN:
      later(CM_NODE_OPEN, alternative ? 1 : 0);
      break;
    case VK_INSERT:
      later(CM_NODE_ADD_FILES, 0);
      break;
    case VK_DELETE:
      later(CM_NODE_REMOVE, 0);
      break;
    case VK_F2:
      later(CM_NODE_RENAME, 0);
      break;
    case VK_F4:
      later(CM_NODE_PROPERTIES, 0);
      break;
    default:
      break;
  }
}

void ProjectWindow::contextMenu(POINT place) {
  static constexpr struct {
    UINT id;  // 0 for a separator
    const char* text;
  } kEntries[] = {
      {CM_NODE_OPEN, "&Open\tEnter"},
      {0, nullptr},
      {CM_NODE_ADD_FILES, "&Add files...\tIns"},
      {CM_NODE_ADD_CONTAINER, "Add &target or group..."},
      {0, nullptr},
      {CM_NODE_RENAME, "Re&name\tF2"},
      {CM_NODE_REMOVE, "&Remove\tDel"},
      {CM_NODE_PROPERTIES, "&Properties...\tF4"},
  };
  const OwnedMenu menu(CreatePopupMenu());
  for (const auto& entry : kEntries) {
    const UINT kind = entry.id == 0 ? MF_SEPARATOR : MF_STRING;
    const bool enabled = entry.id == 0 || host_.projectCommandEnabled(static_cast<int>(entry.id));
    AppendMenuA(menu.get(), kind | (enabled ? MF_ENABLED : MF_GRAYED), entry.id, entry.text);
  }
  const int chosen = TrackPopupMenu(menu.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, place.x, place.y,
                                    0, window(), nullptr);
  if (chosen != 0) {
    host_.projectWindowCommand(chosen);
  }
}

}  // namespace workbench
