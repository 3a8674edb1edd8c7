// Reads the settings file into the settings model.
#pragma once

namespace tavimo {

/// Assigns every field of the model but `sortPriority`. A missing file or key gives the default, and so does
/// a value that cannot answer the conversion asked of it.
void readSettings();

}  // namespace tavimo
