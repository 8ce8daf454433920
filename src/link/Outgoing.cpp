#include "link/Outgoing.h"
