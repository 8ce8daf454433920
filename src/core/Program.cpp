#include "core/Program.h"
