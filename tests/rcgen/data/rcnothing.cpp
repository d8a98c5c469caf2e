// Generated file : do not edit by hand
#include "kesto.h"
#include "rcnothing.h"
