// libplist's tree as Foundation's objects.
#include <cstdlib>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "phone/foundation/property_list_guard.h"
#include "phone/foundation/property_list_tree.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_dictionary.h"
#include "platform/foundation/ns_mutable_array.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/foundation/ns_number.h"
#include "platform/foundation/ns_string.h"

namespace phone {

namespace {

using Object = objc::Owned<NSObject>;

Object build(plist_t node, Containers containers, int depth);

/// Objects kept alive here and, as plain pointers, in the form in which Foundation takes them.
class ObjectList {
 public:
  void add(Object object) {
    pointers_.push_back(object.get());
    objects_.push_back(std::move(object));
  }
  id* data() { return pointers_.data(); }
  NSUInteger count() const { return pointers_.size(); }

 private:
  std::vector<Object> objects_;
  std::vector<id> pointers_;
};

Object text(std::string_view utf8) {
  constexpr unsigned int kUtf8 = 4;
  auto made = Object::adopt(objc::send<"initWithBytes:length:encoding:", NSObject*>(
      objc::sendToClass<NSString, "alloc", id>(), static_cast<const void*>(utf8.data()),
      NSUInteger{utf8.size()}, kUtf8));
  if (!made) throw std::runtime_error("a text is not UTF-8");
  return made;
}

Object textOf(plist_t node) {
  std::uint64_t length = 0;
  const char* const utf8 = plist_get_string_ptr(node, &length);
  return text(utf8 == nullptr ? std::string_view() : std::string_view(utf8, length));
}

Object number(plist_t node) {
  std::uint64_t value = 0;
  // A negative integer comes with its sign in the highest bit.
  plist_get_uint_val(node, &value);
  return Object::retain(NSNumber::numberWithInteger(static_cast<NSInteger>(value)));
}

Object real(plist_t node) {
  double value = 0;
  plist_get_real_val(node, &value);
  return Object::retain(NSNumber::numberWithDouble(value));
}

Object boolean(plist_t node) {
  std::uint8_t value = 0;
  plist_get_bool_val(node, &value);
  return Object::retain(NSNumber::numberWithBool(value != 0));
}

Object date(plist_t node) {
  std::int32_t seconds = 0;
  std::int32_t microseconds = 0;
  plist_get_date_val(node, &seconds, &microseconds);
  return Object::adopt(objc::send<"initWithTimeIntervalSinceReferenceDate:", NSObject*>(
      objc::sendToClass<NSDate, "alloc", id>(), seconds + microseconds / 1e6));
}

Object data(plist_t node) {
  std::uint64_t length = 0;
  const char* const bytes = plist_get_data_ptr(node, &length);
  return Object::adopt(objc::send<"initWithBytes:length:", NSObject*>(
      objc::sendToClass<"NSData", "alloc", id>(), static_cast<const void*>(bytes),
      static_cast<NSUInteger>(length)));
}

struct Free {
  void operator()(void* memory) const { std::free(memory); }
};

/// libplist's iterator over a container, owned.
std::unique_ptr<void, Free> iteratorOf(plist_t node, void (*make)(plist_t, void**)) {
  void* made = nullptr;
  make(node, &made);
  return std::unique_ptr<void, Free>(made);
}

Object array(plist_t node, Containers containers, int depth) {
  ObjectList items;
  const auto iterator = iteratorOf(node, plist_array_new_iter);
  for (;;) {
    plist_t item = nullptr;
    plist_array_next_item(node, iterator.get(), &item);
    if (item == nullptr) break;
    items.add(build(item, containers, depth + 1));
  }
  id const made = containers == Containers::kMutable ? objc::sendToClass<NSMutableArray, "alloc", id>()
                                                     : objc::sendToClass<NSArray, "alloc", id>();
  return Object::adopt(objc::send<"initWithObjects:count:", NSObject*>(made, items.data(), items.count()));
}

Object dictionary(plist_t node, Containers containers, int depth) {
  ObjectList keys;
  ObjectList values;
  const auto iterator = iteratorOf(node, plist_dict_new_iter);
  for (;;) {
    char* key = nullptr;
    plist_t value = nullptr;
    plist_dict_next_item(node, iterator.get(), &key, &value);
    const std::unique_ptr<char, Free> ownedKey(key);
    if (value == nullptr) break;
    keys.add(text(key));
    values.add(build(value, containers, depth + 1));
  }
  id const made = containers == Containers::kMutable ? objc::sendToClass<NSMutableDictionary, "alloc", id>()
                                                     : objc::sendToClass<NSDictionary, "alloc", id>();
  return Object::adopt(objc::send<"initWithObjects:forKeys:count:", NSObject*>(made, values.data(),
                                                                               keys.data(), keys.count()));
}

Object build(plist_t node, Containers containers, int depth) {
  if (depth > kMaximumDepth) throw std::runtime_error("it is nested too deeply");
  switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN:
      return boolean(node);
    case PLIST_UINT:
      return number(node);
    case PLIST_REAL:
      return real(node);
    case PLIST_STRING:
      return textOf(node);
    case PLIST_ARRAY:
      return array(node, containers, depth);
    case PLIST_DICT:
      return dictionary(node, containers, depth);
    case PLIST_DATE:
      return date(node);
    case PLIST_DATA:
      return data(node);
    default:
      throw std::runtime_error("it holds a kind of value that no preference file has");
  }
}

}  // namespace

objc::Owned<NSObject> objectOf(plist_t tree, Containers containers) { return build(tree, containers, 1); }

}  // namespace phone
