#include "addon/ide/make_client.h"

#include <new>

namespace kesto {

const MakeOrder* makeOrder = nullptr;

void STDMETHODCALLTYPE MakeClient::MakeStarted() {
  if (makeOrder != nullptr) {
    for (const MakeStep step : makeOrder->started) {
      step();
    }
  }
}

void STDMETHODCALLTYPE MakeClient::MakeEnded(int result) {
  if (makeOrder != nullptr) {
    for (const MakeEndStep step : makeOrder->ended) {
      step(result);
    }
  }
}

IMakeClient* createMakeClient() {
  return new (std::nothrow) MakeClient;
}

}  // namespace kesto
