#pragma once

// The animated view's engine: records, layout, clients and the thread that draws. No window and no
// drawing in it; those are behind QuintessentialHost.
#include "animated_view/QuintessentialGlobals.h"
#include "animated_view/QuintessentialHost.h"
#include "animated_view/QuintessentialInformationClient.h"
#include "animated_view/QuintessentialInformationProcessInfo.h"
#include "animated_view/QuintessentialLayout.h"
