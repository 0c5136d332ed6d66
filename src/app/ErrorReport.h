// The error report: the failure with its trail and the program's and the game's context, composed for the
// user to send to the maker, and shown in the report window.
#pragma once

#include "app/UserInterface.h"
#include "error/Failure.h"

// The number as the report shows it in parentheses: without the bits of the object-error range.
int32_t PlainErrorNumber(int32_t number);

ErrorReport ComposeErrorReport(const Failure& failure);

// Composes the report of `failure` and shows it through the installed user interface: the reporter that
// the user interface installs for mError::ShowError.
void ShowErrorReport(const Failure& failure);
