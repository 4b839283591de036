#include "core/KitColors.h"
