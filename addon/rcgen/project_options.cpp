#include "addon/rcgen/project_options.h"

namespace kesto {

RcgenProjectOptions rcgenProjectOptions;

}  // namespace kesto
