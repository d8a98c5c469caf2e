#include "addon/groupware/group_exchange.h"

#include "addon/groupware/group_ids.h"

namespace kesto {

namespace {

constexpr int kSendStops[] = {292, 332, 380, 500, 600};
constexpr int kGetStops[] = {219, 251, 291, 332, 380};
constexpr ExchangeLook kSendLook = {"GroupwareSend", kSendStops, "\tNewer\tCONFLICT",
                                    "Groupware SEND : project ", kHelpGroupwareSend};
constexpr ExchangeLook kGetLook = {"GroupwareGet", kGetStops, "\tYes\tNewer\tRefresh\tRefresh",
                                   "Groupware GET : project ", kHelpGroupwareGet};

// Names that stand below each other; more go on in lines, as far as a screen holds them.
constexpr std::size_t kColumnOfNames = 20;
constexpr std::size_t kMostCharacters = 3000;

}  // namespace

const ExchangeLook& SendExchange::look() const {
  return kSendLook;
}

void SendExchange::fill(GroupFiles& files, const GroupRoots& roots, std::string_view filters,
                        WalkWatch* watch) {
  fillSendList(list_, files, roots, filters, watch);
}

std::string SendExchange::rowText(int row, const GroupRoots& roots) const {
  return list_.at(row)->row(roots.project.size());
}

bool SendExchange::press(int button, const std::vector<int>& selected) {
  switch (button) {
    case GROUP_CLEAR:
      pressButton(SendButton::kClear, list_, selected);
      return true;
    case GROUP_KEEPING:
      pressButton(SendButton::kUpdate, list_, selected);
      return true;
    case GROUP_LOCKING:
      pressButton(SendButton::kSendAndUnlock, list_, selected);
      return true;
    default:
      return false;
  }
}

const ExchangeLook& GetExchange::look() const {
  return kGetLook;
}

void GetExchange::fill(GroupFiles& files, const GroupRoots& roots, std::string_view filters,
                       WalkWatch* watch) {
  fillGetList(list_, files, roots, filters, watch);
}

std::string GetExchange::rowText(int row, const GroupRoots& roots) const {
  return list_.at(row)->row(roots.server.size());
}

bool GetExchange::press(int button, const std::vector<int>& selected) {
  switch (button) {
    case GROUP_ADVISED:
      pressButton(GetButton::kAsAdvised, list_, selected);
      return true;
    case GROUP_CLEAR:
      pressButton(GetButton::kClear, list_, selected);
      return true;
    case GROUP_KEEPING:
      pressButton(GetButton::kRefresh, list_, selected);
      return true;
    case GROUP_LOCKING:
      pressButton(GetButton::kGetAndLock, list_, selected);
      return true;
    default:
      return false;
  }
}

std::string leftAloneText(const std::vector<std::string>& names) {
  std::string text =
      "Changed on the server since the list was filled, and left alone:\n\n" + names.front();
  const char* between = names.size() > kColumnOfNames ? ", " : "\n";
  for (std::size_t i = 1; i < names.size(); ++i) {
    if (text.size() + names[i].size() > kMostCharacters) {
      return text + "\nand " + std::to_string(names.size() - i) + " more";
    }
    text += between + names[i];
  }
  return text;
}

}  // namespace kesto
