#include "addon/delivery/delivery.h"

#include <new>

#include "addon/delivery/deliv_tool.h"
#include "addon/delivery/delivery_session.h"
#include "addon/delivery/project_options.h"
#include "addon/ide/project_nodes.h"

namespace kesto {

Delivery* delivery = nullptr;
std::string (*notificationsToMail)(const std::string& project_file) = nullptr;

namespace {

constexpr int kPosition = -3;
constexpr char kName[] = "KestoDelivery";
constexpr unsigned kFlags = 0x2100;
constexpr char kDescription[] = "Kesto Project delivery";
constexpr char kMenuText[] = "Kesto &Delivery";
constexpr char kText[] = "[Kesto AddOn extension]";

void removeTool(IToolService& service) {
  const ComPtr<IIdeString> name = makeIdeString(kName);
  const ToolHandle tool = name ? service.FindTool(name.get()) : 0;
  if (tool != 0) {
    service.DeleteTool(tool);
  }
}

bool addTool(IToolService& service) {
  const ComPtr<IIdeString> name = makeIdeString(kName);
  const ComPtr<IIdeString> description = makeIdeString(kDescription);
  const ComPtr<IIdeString> menu_text = makeIdeString(kMenuText);
  const ComPtr<IIdeString> text = makeIdeString(kText);
  const ComPtr<IToolImplementor> implementor(new (std::nothrow) DelivTool);
  const ToolHandle tool =
      name && description && menu_text && text && implementor ? service.CreateTool() : 0;
  if (tool == 0) {
    return false;
  }
  service.SetPosition(tool, kPosition);
  service.SetName(tool, name.get());
  service.SetFlags(tool, kFlags);
  service.SetDescription(tool, description.get());
  service.SetMenuText(tool, menu_text.get());
  service.SetText(tool, text.get());
  service.SetImplementor(tool, implementor.get());
  const bool added = service.AddTool(tool) != 0;
  if (!added) {
    service.DeleteTool(tool);
  }
  return added;
}

}  // namespace

int STDMETHODCALLTYPE DelivTool::Run(IIdeString*) {
  // The project may close meanwhile, and the IDE give the tool back.
  AddRef();
  if (delivery != nullptr) {
    delivery->run();
  }
  Release();
  return kToolDone;
}

Delivery::~Delivery() {
  unregisterTool();
}

void Delivery::registerTool() {
  const ComPtr<IToolService> service =
      registered_ ? ComPtr<IToolService>() : getService<IToolService>(ideapi::kToolService);
  if (service) {
    removeTool(*service.get());
    registered_ = addTool(*service.get());
  }
}

void Delivery::unregisterTool() {
  const ComPtr<IToolService> service =
      registered_ ? getService<IToolService>(ideapi::kToolService) : ComPtr<IToolService>();
  if (service) {
    removeTool(*service.get());
  }
  registered_ = false;
}

void Delivery::applyTool() {
  if (deliveryProjectOptions.tool_present.value != 0) {
    registerTool();
  } else {
    unregisterTool();
  }
}

void Delivery::run() {
  if (running_) {
    return;
  }
  running_ = true;
  runDelivery();
  if (delivery == this) {
    running_ = false;
  }
}

DeliveryNodes rebuildDeliveryGroups() {
  const ComPtr<IProjectService> service = getService<IProjectService>(ideapi::kProjectService);
  DeliveryNodes nodes;
  if (service && service->IsProjectLoaded() != 0) {
    nodes = findDeliveryNodes(ProjectNodes());
  }
  deliveryProjectOptions.rebuild(nodes);
  return nodes;
}

}  // namespace kesto
