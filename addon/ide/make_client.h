// The add-on's client of the IDE's make service. What is done when a make starts and
// ends is filled in from above. User-interface thread only.
#pragma once

#include <span>

#include "addon/ide/unknown_imp.h"

namespace kesto {

using MakeStep = void (*)();
// Takes a MakeResult.
using MakeEndStep = void (*)(int result);

// The steps of each event, run from first to last.
struct MakeOrder {
  std::span<const MakeStep> started;
  std::span<const MakeEndStep> ended;
};

// Null: nothing is done.
extern const MakeOrder* makeOrder;

class MakeClient : public IUnknownImp<IMakeClient> {
 public:
  void STDMETHODCALLTYPE MakeStarted() override;
  void STDMETHODCALLTYPE MakeEnded(int result) override;
};

// With its first reference; null when memory is short.
IMakeClient* createMakeClient();

}  // namespace kesto
