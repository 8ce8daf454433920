#include "link/SocketProp.h"
