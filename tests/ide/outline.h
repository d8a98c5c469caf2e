// A project's tree as a test writes it down: a row a node, in the order of the project
// window, each as deep as it stands there. Node n is row n - 1.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "addon/ide/node_tree.h"

struct Row {
  int depth;
  std::string name;
  std::string type;
};

class Outline : public kesto::NodeTree {
 public:
  explicit Outline(std::vector<Row> rows) : rows_(std::move(rows)), children_(rows_.size() + 1) {
    std::vector<unsigned> path = {0};
    for (unsigned node = 1; node <= rows_.size(); ++node) {
      path.resize(static_cast<size_t>(rows_[node - 1].depth) + 1);
      children_[path.back()].push_back(node);
      next_.push_back(0);
      std::vector<unsigned>& siblings = children_[path.back()];
      if (siblings.size() > 1) {
        next_[siblings[siblings.size() - 2] - 1] = node;
      }
      path.push_back(node);
    }
  }
  unsigned top() const override { return firstChild(0); }
  unsigned firstChild(unsigned node) const override {
    return children_[node].empty() ? 0 : children_[node].front();
  }
  unsigned nextSibling(unsigned node) const override { return next_[node - 1]; }
  std::string name(unsigned node) const override { return rows_[node - 1].name; }
  std::string type(unsigned node) const override { return rows_[node - 1].type; }

 private:
  std::vector<Row> rows_;
  std::vector<std::vector<unsigned>> children_;
  std::vector<unsigned> next_;
};
