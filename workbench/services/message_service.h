// The message window for add-ons. User-interface thread only.
#pragma once

#include "workbench/services/counted.h"
#include "workbench/services/service_context.h"

namespace workbench {

class MessageService final : public Service<IMessageService> {
 public:
  explicit MessageService(const ServiceContext& context);

  MessageGroup STDMETHODCALLTYPE CreateGroup(IIdeString* name, IIdeString* menu_text) override;
  MessageHandle STDMETHODCALLTYPE AddMessage(MessageGroup group, MessageHandle parent,
                                             IIdeString* text) override;
  MessageHandle STDMETHODCALLTYPE AddLocatedMessage(MessageGroup group, MessageHandle parent,
                                                    IIdeString* text, IIdeString* file, int line,
                                                    short column, int kind) override;

 private:
  ServiceContext context_;
};

}  // namespace workbench
