#include "core/Folders.h"
