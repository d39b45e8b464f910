#include "check/LoadBalance.h"
