// Where kivsim finds what it brings into the sandbox: the sample phone and the
// platform libraries. An installed kivsim finds them under its own prefix; one
// that runs from the build's program folder finds them where the build put them.
#pragma once

#include <QString>

namespace InstallLayout {

// The folder kivsim shows read-only for what runs from there: the build
// tree, or the library folder of the prefix it is installed in, where the
// programs installed beside it find the library.
QString ownFolder();
// The device folder used without --device.
QString sampleDevice();
QString simulatorPlatformFolder();
QString simulatorServicesFolder();
QString hostPlatformFolder();

} // namespace InstallLayout
