// What an engine needs to know of the world, and whoever builds one implements: clock, message boxes, locales.
#pragma once

#include "platform/vbscript/value/Host.h"
#include "platform/vbscript/value/Locale.h"
#include "platform/vbscript/value/LocaleNames.h"
