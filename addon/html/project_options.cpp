#include "addon/html/project_options.h"

namespace kesto {

HtmlProjectOptions htmlProjectOptions;

}  // namespace kesto
