// The version number of the platform's Foundation, which tells the releases of the phone apart.
#pragma once

extern "C" double NSFoundationVersionNumber;
