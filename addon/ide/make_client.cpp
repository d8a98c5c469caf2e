#include "addon/ide/make_client.h"

#include <new>

namespace kesto {

const MakeOrder* makeOrder = nullptr;

namespace {

// The IDE may close within a step, and takes the order away.
template <class Step, class... Arguments>
void run(std::span<const Step> MakeOrder::*steps, Arguments... arguments) {
  for (std::size_t i = 0; makeOrder != nullptr && i < (makeOrder->*steps).size(); ++i) {
    (makeOrder->*steps)[i](arguments...);
  }
}

}  // namespace

void STDMETHODCALLTYPE MakeClient::MakeStarted() {
  run(&MakeOrder::started);
}

void STDMETHODCALLTYPE MakeClient::MakeEnded(int result) {
  run(&MakeOrder::ended, result);
}

IMakeClient* createMakeClient() {
  return new (std::nothrow) MakeClient;
}

}  // namespace kesto
