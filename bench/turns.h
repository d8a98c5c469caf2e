// Measures pieces of work against each other. They take turns, so that a busy moment of
// the machine falls on all alike, and the best time of each counts: what else went on can
// only have made it longer.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace kesto {

class Turns {
 public:
  // before runs ahead of the work each time and is not measured.
  void add(std::string name, std::function<void()> work, std::function<void()> before = {}) {
    all_.push_back({std::move(name), std::move(work), std::move(before)});
  }

  // Prints a line with its name and its best milliseconds for each. The first round fills
  // the caches and does not count.
  void run(int rounds) {
    for (int round = 0; round <= rounds; ++round) {
      for (One& one : all_) {
        if (one.before) {
          one.before();
        }
        const auto begun = std::chrono::steady_clock::now();
        one.work();
        const std::chrono::duration<double, std::milli> time =
            std::chrono::steady_clock::now() - begun;
        if (round > 0) {
          one.best = std::min(one.best, time.count());
        }
      }
    }
    for (const One& one : all_) {
      printf("%s %f\n", one.name.c_str(), one.best);
    }
  }

 private:
  struct One {
    std::string name;
    std::function<void()> work;
    std::function<void()> before;
    double best = std::numeric_limits<double>::max();
  };
  std::vector<One> all_;
};

}  // namespace kesto
