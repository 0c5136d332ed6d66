// Composes the text of the error report: the failure with its trail, and the program's and the game's
// context, ready for the user to send to the maker.
#pragma once

#include "app/UserInterface.h"
#include "error/Failure.h"

// The number as the report shows it in parentheses: without the bits of the object-error range.
int32_t PlainErrorNumber(int32_t number);

ErrorReport ComposeErrorReport(const Failure& failure);
