// Visibility of the phone platform's symbols, exported by the libraries that
// implement them.
#pragma once

#define KIVPLATFORM_EXPORT __attribute__((visibility("default")))
