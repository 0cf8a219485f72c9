#pragma once

#include "bundle/AppBundle.h"

#include <optional>

// The bundle whose TDLib is the offline demo account. The application's bundle
// (installed, or the build tree, which has the same shape) keeps the demo library
// as lib/vost/demo/libtdjson.so and a bundle root for it in share/vost/demo-bundle/,
// whose lib/vost/libtdjson.so links to that library. None when the demo account
// is not there.
std::optional<AppBundle> demoBundle(const AppBundle &main);
