// The identifiers of our interfaces and classes get their place here.

#include <windows.h>

#include <initguid.h>

#include <cguid.h>

#include "quorvaneInterfaces.h"
