// The tool of the IDE's Tool menu that delivers. The IDE holds it; user-interface thread.
#pragma once

#include "addon/ide/unknown_imp.h"

namespace kesto {

class DelivTool : public IUnknownImp<IToolImplementor> {
 public:
  DelivTool() : IUnknownImp(ideapi::kToolImplementor) {}
  int STDMETHODCALLTYPE Run(IIdeString* file) override;
};

}  // namespace kesto
