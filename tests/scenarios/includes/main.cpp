#include "deep.h"
#include <nowhere.h>
#include "both.h" // see <angle.h>
#include ""
// #include "beside.h"
#include "second/../beside.h"
