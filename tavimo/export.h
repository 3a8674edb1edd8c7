// Marks what the library exports. Everything else stays hidden.
#pragma once

#define TAVIMO_EXPORT extern "C" [[gnu::visibility("default")]]
