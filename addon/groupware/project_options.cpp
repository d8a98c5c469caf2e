#include "addon/groupware/project_options.h"

namespace kesto {

GroupwareProjectOptions groupwareProjectOptions;

}  // namespace kesto
