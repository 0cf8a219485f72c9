// Calls that run the display-side helpers on given input.

#include "ReplayDriver.h"
#include "ReplayModules.h"

void registerRenderCalls(ReplayDriver &, const ReplayOptions &) {}
