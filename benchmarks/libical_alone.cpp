// Parses a calendar file with libical and expands every event over thirty years, and nothing else: what an
// import is measured against. Prints the number of occurrences.
#include <cstdio>
#include <fstream>
#include <iterator>
#include <libical/ical.h>
#include <string>

namespace {

void countOccurrence(icalcomponent*, icaltime_span*, void* count) { ++*static_cast<long*>(count); }

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: libical_alone FILE.ics\n");
    return 2;
  }
  std::ifstream file(argv[1], std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  icalcomponent* const calendar = icalparser_parse_string(text.c_str());
  if (calendar == nullptr) {
    std::fprintf(stderr, "%s: no calendar\n", argv[1]);
    return 1;
  }
  const icaltimetype begin = icaltime_from_string("20100101T000000Z");
  const icaltimetype end = icaltime_from_string("20400101T000000Z");
  long occurrences = 0;
  for (icalcomponent* event = icalcomponent_get_first_component(calendar, ICAL_VEVENT_COMPONENT);
       event != nullptr; event = icalcomponent_get_next_component(calendar, ICAL_VEVENT_COMPONENT)) {
    icalcomponent_foreach_recurrence(event, begin, end, countOccurrence, &occurrences);
  }
  icalcomponent_free(calendar);
  std::printf("%ld\n", occurrences);
  return 0;
}
