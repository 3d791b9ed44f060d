// What host objects are written with: objects and their members, values and their conversions, arrays, the running
// engine as a member function gets it, and the dictionary of scripts for those who want to look into one.
//
//     class Counter : public vbs::NativeObject<Counter> ...        value/Object.h has the whole example
#pragma once

#include "platform/vbscript/library/Dictionary.h"
#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Context.h"
#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Errors.h"
#include "platform/vbscript/value/Object.h"
#include "platform/vbscript/value/Value.h"
