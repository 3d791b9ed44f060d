// The language for those who show texts of scripts rather than run them: its words and signs with their places, and the
// names of its functions, constants and objects.
#pragma once

#include "platform/vbscript/library/Builtins.h"
#include "platform/vbscript/syntax/Lexer.h"
#include "platform/vbscript/value/String.h"
