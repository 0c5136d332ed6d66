#include "storage/cIni_Profile.h"

cIni_Profile::cIni_Profile() : cIni_Base("cIni_Profile", "") {}
