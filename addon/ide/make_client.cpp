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

void STDMETHODCALLTYPE MakeClient::MakeEnded(int) {
  if (makeOrder != nullptr) {
    for (const MakeStep step : makeOrder->ended) {
      step();
    }
  }
}

IMakeClient* createMakeClient() {
  return new (std::nothrow) MakeClient;
}

}  // namespace kesto
