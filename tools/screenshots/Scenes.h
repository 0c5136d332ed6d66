// What the screenshots show: every window and control of the program, in the current language.
#pragma once

class ScreenshotSession;

namespace Scenes {

void RenderDialogs(ScreenshotSession& session);
void RenderUpdate(ScreenshotSession& session);
void RenderControls(ScreenshotSession& session);
// Needs the sample profiles of RenderDialogs.
void RenderMainWindow(ScreenshotSession& session);

}  // namespace Scenes
