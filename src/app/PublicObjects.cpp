#include "app/PublicObjects.h"

#include "app/Application.h"
#include "error/mError.h"
#include "translate/cTranslate.h"

std::unique_ptr<Application> g_cApp;
std::unique_ptr<cTranslate> g_cTranslate;

const cTranslate& Translator() {
    if (!g_cTranslate)
        mError::RaiseError(mError::kInternalError, "The translation engine does not exist yet");
    return *g_cTranslate;
}

Application& App() {
    if (!g_cApp)
        mError::RaiseError(mError::kInternalError, "The application object does not exist yet");
    return *g_cApp;
}
