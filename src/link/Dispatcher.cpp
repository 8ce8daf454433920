#include "link/Dispatcher.h"
