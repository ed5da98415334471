#pragma once

#include <windows.h>

// The component's interfaces as its type library declares them.
#include "quorvaneInterfaces.h"
