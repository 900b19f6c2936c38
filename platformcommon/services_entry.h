// The entry of every platform's services library, libkivtambro_util.so: the
// two functions the file manager's library looks up by name when it loads it
// (services_entry.cpp, compiled into each). Each platform's services library
// defines makeServices().
#pragma once

class TAMBRO_UTIL_Interface;

namespace KivPlatform {

// A new service object of the platform's kind; the library hands it back to
// be deleted.
TAMBRO_UTIL_Interface *makeServices();

} // namespace KivPlatform
