#include "addon/pages/delivery_page.h"

#include <algorithm>

#include "addon/delivery/delivery.h"
#include "addon/delivery/project_options.h"
#include "addon/ide/gdi_handles.h"
#include "addon/ide/help_topics.h"
#include "addon/ide/project_client.h"
#include "addon/pages/folder_choice.h"
#include "addon/pages/page_ids.h"
#include "addon/pages/page_list.h"

namespace kesto {
namespace {

// In dialog units: what a type takes at least, what stands between columns, and "Active".
constexpr int kTypeWidth = 56;
constexpr int kGap = 8;
constexpr int kActiveWidth = 34;

int pixelsOfUnits(HWND dialog, int units) {
  RECT box = {0, 0, units, 0};
  MapDialogRect(dialog, &box);
  return box.right;
}

int textWidth(HWND list, const std::string& text) {
  const ClientDc dc(list);
  const Selection font(dc.get(), reinterpret_cast<HFONT>(SendMessageA(list, WM_GETFONT, 0, 0)));
  SIZE size = {};
  GetTextExtentPoint32A(dc.get(), text.data(), static_cast<int>(text.size()), &size);
  return size.cx;
}

}  // namespace

DeliveryPage::DeliveryPage(int dialog_id)
    : AddonPageBase(dialog_id, kPageKind, "Project delivery", "Set project delivery options",
                    kHelpPageDelivery) {}

void DeliveryPage::exchange(PageExchange& controls) {
  project_.meet(controls);
  project_.flag(controls, DELIVERY_ENABLED, "Activate delivery tool (in Tool menu)",
                deliveryProjectOptions.tool_present.value);
  const bool selected = IsWindow(list_) != 0 && SendMessageA(list_, LB_GETCURSEL, 0, 0) != LB_ERR;
  controls.plain(DELIVERY_GROUPS, selected ? "Set delivery directory" : "Select delivery group");
  controls.enable(DELIVERY_GROUPS, project_.isOpen());
}

void DeliveryPage::filled(HWND dialog) {
  list_ = GetDlgItem(dialog, DELIVERY_GROUPS);
  takeListKeys(list_);
  groups_.clear();
  if (project_.isOpen()) {
    rebuildDeliveryGroups();
    const Tableau<OneDelRep>& groups = deliveryProjectOptions.groups;
    for (int i = 0; i < groups.count(); ++i) {
      groups_.push_back(
          {groups[i]->type.text(), groups[i]->directory.text(), groups[i]->active != 0});
    }
  }
  placeColumns(dialog);
  show();
}

// Behind the longest type.
void DeliveryPage::placeColumns(HWND dialog) {
  constexpr int kManyUnits = 1000;
  int widest = 0;
  for (const Group& group : groups_) {
    widest = std::max(widest, textWidth(list_, group.type));
  }
  const int units = MulDiv(widest, kManyUnits, pixelsOfUnits(dialog, kManyUnits)) + kGap;
  stops_[0] = std::max(units, kTypeWidth);
  stops_[1] = stops_[0] + kActiveWidth;
  rows_.setUp(list_, stops_, "");
  std::string beginning;
  for (int heading = DELIVERY_HEADING_FIRST; heading <= DELIVERY_HEADING_LAST; ++heading) {
    rows_.placeHeading(heading, beginning);
    beginning += '\t';
  }
}

void DeliveryPage::show() const {
  const LRESULT selected = SendMessageA(list_, LB_GETCURSEL, 0, 0);
  const LRESULT top = SendMessageA(list_, LB_GETTOPINDEX, 0, 0);
  SendMessageA(list_, WM_SETREDRAW, FALSE, 0);
  rows_.replace(static_cast<int>(groups_.size()), [&](int row, std::string& text) {
    const Group& group = groups_[static_cast<std::size_t>(row)];
    text = group.type + '\t' + (group.active ? "Yes" : "No") + '\t' + group.directory;
  });
  SendMessageA(list_, LB_SETTOPINDEX, static_cast<WPARAM>(top), 0);
  SendMessageA(list_, LB_SETCURSEL, static_cast<WPARAM>(selected), 0);
  SendMessageA(list_, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(list_, nullptr, TRUE);
}

bool DeliveryPage::command(HWND dialog, int control, int notification) {
  if (control != DELIVERY_GROUPS || (notification != LBN_DBLCLK && notification != kListSpace)) {
    return false;
  }
  const int row = currentRow(list_);
  if (row < 0 || row >= static_cast<int>(groups_.size())) {
    return true;
  }
  SendMessageA(list_, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
  if (notification == LBN_DBLCLK) {
    chooseDirectory(dialog, static_cast<std::size_t>(row));
  } else {
    Group& group = groups_[static_cast<std::size_t>(row)];
    group.active = !group.active;
    markChanged();
    show();
  }
  return true;
}

void DeliveryPage::chooseDirectory(HWND dialog, std::size_t row) {
  const std::string title = "Delivery directory of " + groups_[row].type;
  // The IDE may close meanwhile, and let the page go.
  AddRef();
  const std::string chosen = chooseFolder(dialog, title.c_str(), groups_[row].directory);
  if (!chosen.empty() && chosen != groups_[row].directory && IsWindow(dialog) != 0) {
    groups_[row].directory = chosen;
    markChanged();
    show();
  }
  Release();
}

void DeliveryPage::stored(HWND) {
  if (!project_.isOpen()) {
    return;
  }
  for (const Group& shown : groups_) {
    if (OneDelRep* group = groupOfType(deliveryProjectOptions.groups, shown.type)) {
      group->directory = std::string_view(shown.directory);
      group->active = shown.active ? 1 : 0;
    }
  }
  saveProjectOptions();
  if (delivery != nullptr) {
    delivery->applyTool();
  }
}

}  // namespace kesto
