// The controls of the bare window's pages, shared by its layout and its code.
#pragma once

#define IDC_BARE_LABEL 100
#define IDC_BARE_FIELD 101
#define IDC_BARE_CHECK 102
#define IDC_BARE_LIST 103
