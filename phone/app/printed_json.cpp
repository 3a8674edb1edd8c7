#include "phone/app/printed_json.h"

#include <nlohmann/json.hpp>

namespace phone {

std::string printedJson(const nlohmann::ordered_json& json) {
  return json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) + "\n";
}

}  // namespace phone
