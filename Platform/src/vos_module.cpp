#include "vos_lib.h"

VosModulePrintFilter_t module_print_filter = {0};
