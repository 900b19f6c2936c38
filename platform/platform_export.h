// Visibility of the phone platform's symbols. On the phone these come from the
// platform's own libraries; on the desktop the simulated platform exports them.
#pragma once

#define KIVPLATFORM_EXPORT __attribute__((visibility("default")))
