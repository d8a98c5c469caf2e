#include "workbench/windows/child_place.h"

#include "doctest.h"

using namespace workbench;

namespace {

constexpr int kStep = 20;

bool same(const Area& a, const Area& b) {
  return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

}  // namespace

TEST_CASE("a new window stands beside the panes, one step in from the one before") {
  const Area whole = {0, 0, 1000, 600};
  const Area project = {0, 0, 260, 450};
  const Area messages = {0, 450, 1000, 600};
  // Four steps of 20 are left free for those that come later.
  CHECK(same(placeForNew(whole, {}, {}, kStep), {0, 0, 920, 520}));
  CHECK(same(placeForNew(whole, {project}, {}, kStep), {260, 0, 920, 520}));
  for (const bool project_first : {true, false}) {
    const std::vector<Area> panes =
        project_first ? std::vector<Area>{project, messages} : std::vector<Area>{messages, project};
    CHECK(same(placeForNew(whole, panes, {}, kStep), {260, 0, 920, 370}));
  }

  std::vector<Area> editors;
  for (const int left : {260, 280, 300, 320, 340, 260}) {
    editors.push_back(placeForNew(whole, {project, messages}, editors, kStep));
    CHECK(editors.back().left == left);
    CHECK(editors.back().right <= 1000);
    CHECK(editors.back().bottom <= 450);
  }
  // The place of one that has gone is the next to be taken.
  editors.erase(editors.begin() + 1);
  CHECK(placeForNew(whole, {project, messages}, editors, kStep).left == 280);
}

TEST_CASE("panes that leave no room to work in are stood over") {
  CHECK(same(placeForNew({0, 0, 400, 300}, {{0, 0, 390, 290}}, {}, 40), {0, 0, 240, 140}));
  // A step that does not fit is not made, and no window is too small to be seen.
  CHECK(same(placeForNew({0, 0, 200, 100}, {}, {{0, 0, 200, 100}}, kStep), {0, 0, 240, 120}));
}
