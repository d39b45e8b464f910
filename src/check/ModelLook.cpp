#include "check/ModelLook.h"
