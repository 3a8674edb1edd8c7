// JSON as the verbs print it.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

namespace phone {

/// Indented, with a line feed at the end; bytes that are no UTF-8 are replaced.
std::string printedJson(const nlohmann::ordered_json& json);

}  // namespace phone
