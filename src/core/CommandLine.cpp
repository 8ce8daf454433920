#include "core/CommandLine.h"
