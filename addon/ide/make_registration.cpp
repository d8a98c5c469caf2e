#include "addon/ide/make_registration.h"

#include "addon/foundation/message_box.h"
#include "addon/ide/access.h"

namespace kesto {
namespace {

// Fixed by registration, empty otherwise.
ComPtr<IMakeService> makeService;
ComPtr<IMakeClient> makeClient;

}  // namespace

void registerMakeClient(MakeClientFactory create) {
  if (makeClient) {
    return;
  }
  makeService = getService<IMakeService>(ideapi::kMakeService);
  if (!makeService) {
    showMessage(nullptr, "Creation SMK impossible", "Erreur", kMessageOk);
    return;
  }
  makeClient = ComPtr<IMakeClient>(create());
  if (!makeClient) {
    showMessage(nullptr, "Creation CMK impossible", "Erreur", kMessageOk);
    makeService.reset();
    return;
  }
  makeService->AddClient(makeClient.get());
}

void unregisterMakeClient() {
  if (makeClient) {
    makeService->RemoveClient(makeClient.get());
    makeClient.reset();
  }
  makeService.reset();
}

}  // namespace kesto
