// Where kivsim finds what it brings into the sandbox: the sample phone and the
// platform libraries. An installed kivsim finds them under its own prefix; one
// that runs from the build's program folder finds them where the build put them.
#pragma once

#include <QString>

namespace InstallLayout {

// True when kivsim runs from the build tree, which it then shows read-only
// inside the sandbox (the tests and examples run from there).
bool runsFromBuild();
QString buildFolder();
// The device folder used without --device.
QString sampleDevice();
QString simulatorPlatformFolder();
QString simulatorServicesFolder();
QString hostPlatformFolder();

} // namespace InstallLayout
