// The program's two program-wide objects, created by Main and released by ClosePublicObjects.
#pragma once

#include <memory>

class Application;
class cTranslate;

extern std::unique_ptr<Application> g_cApp;
extern std::unique_ptr<cTranslate> g_cTranslate;

// The translation engine; raises a failure when there is none yet.
const cTranslate& Translator();

// The application object; raises a failure when there is none yet.
Application& App();
