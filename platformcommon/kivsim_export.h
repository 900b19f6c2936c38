// The simulated platform's own interface beside the phone's: what the
// simulated services library, built apart, needs of it.
#pragma once

#define KIVSIM_EXPORT __attribute__((visibility("default")))
