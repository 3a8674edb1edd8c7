#include "phone/calendarstore/ics/calendar_import.h"

#include <algorithm>
#include <set>

#include "phone/calendarstore/database/calendar_color.h"
#include "phone/calendarstore/ics/ics_event.h"
#include "phone/calendarstore/ics/ics_scanner.h"
#include "phone/calendarstore/ics/ics_zones.h"
#include "phone/calendarstore/ics/import_source.h"
#include "phone/calendarstore/ics/import_targets.h"
#include "phone/calendarstore/recurrence/recurrence_rule.h"

namespace phone {

namespace {

constexpr std::size_t kEventsBetweenReports = 500;

/// An event of a file in which a zone may still be defined that it uses.
struct WaitingEvent {
  IcsComponent component;
  ImportTarget* target;
};

class Importer {
 public:
  Importer(CalendarDatabase& database, const ImportOptions& options)
      : database_(database),
        options_(options),
        targets_(database, options.removeMissing),
        zones_(options.phoneZone) {}

  ImportResult run(const std::vector<std::filesystem::path>& paths) {
    const std::vector<ImportSource> sources = findSources(paths);
    bytesTotal_ = totalSize(sources);
    Transaction transaction = database_.beginChange();
    for (const ImportSource& source : sources) importSource(source);
    if (options_.removeMissing) targets_.removeMissing();
    transaction.commit();
    result_.calendars = targets_.results();
    return std::move(result_);
  }

 private:
  void importSource(const ImportSource& source) {
    leftOut_ = {};
    for (const std::filesystem::path& file : source.files) importFile(source, file);
    const std::string leftOut = leftOut_.text();
    if (leftOut.empty()) return;
    const std::filesystem::path& first = source.files.front();
    result_.warnings.push_back((source.files.size() == 1 ? first : first.parent_path()).string() +
                               ": left out, for the phone's calendar has no place for it: " + leftOut);
  }

  void importFile(const ImportSource& source, const std::filesystem::path& file) {
    brokenInFile_ = 0;
    bytesInFile_ = 0;
    zones_ = IcsZones(options_.phoneZone);
    toEnds_ = WalkBudget(kMaxStepsToEnds);
    std::vector<WaitingEvent> waiting;
    try {
      scan(source, file, waiting);
    } catch (const IcsError& error) {
      if (!options_.skipBroken) throw;
      addBroken(error.what() + std::string(bytesInFile_ == 0 ? "" : "; what follows in the file is lost"));
    }
    zones_.endDefinitions();
    std::set<std::string> unknown;
    for (const auto& [component, target] : waiting) {
      const auto event = read(file, component);
      if (!event) continue;
      if (!event->unknownZone.empty() && unknown.insert(event->unknownZone).second) {
        warnOfZone(file, component, event->unknownZone);
      }
      take(*event, *target);
    }
    if (brokenInFile_ > kMaxListedOfFile) {
      result_.broken.push_back(file.string() + ": and " + std::to_string(brokenInFile_ - kMaxListedOfFile) +
                               " more");
    }
    bytesBefore_ += bytesInFile_;
    if (bytesBefore_ >= bytesTotal_) report(file, bytesTotal_);
  }

  /// Brings in what is complete by itself, and collects the rest.
  void scan(const ImportSource& source, const std::filesystem::path& file,
            std::vector<WaitingEvent>& waiting) {
    IcsScanner scanner(file, options_.skipBroken ? [this](const std::string& problem) { addBroken(problem); }
                                                 : IcsScanner::ReportProblem());
    ImportTarget* target = nullptr;
    std::size_t calendar = 0;
    while (auto component = scanner.next()) {
      if (calendar != scanner.calendarsBegun()) {
        target = &targetFor(source, scanner);
        calendar = scanner.calendarsBegun();
      }
      bytesInFile_ = scanner.bytesRead();
      if (component->kind == IcsComponent::Kind::kZone) {
        zones_.define(*component);
        continue;
      }
      // It had a name, and perhaps nothing else.
      if (component->kind == IcsComponent::Kind::kEnd) continue;
      const auto event = read(file, *component);
      if (event && event->unknownZone.empty()) {
        take(*event, *target);
      } else if (event) {
        waiting.push_back({std::move(*component), target});
      }
      if (targets_.events() % kEventsBetweenReports == 0) report(file, bytesBefore_ + bytesInFile_);
    }
    // A calendar without events may lack its end, too.
    if (calendar != scanner.calendarsBegun()) targetFor(source, scanner);
    leftOut_.add(scanner.leftOut());
    bytesInFile_ = scanner.bytesRead();
  }

  ImportTarget& targetFor(const ImportSource& source, const IcsScanner& scanner) {
    const bool fileDecides = !source.isNamedByUser && !scanner.calendarName().empty();
    const bool isColoredByUser = parseCalendarColor(source.color).has_value();
    return targets_.named(fileDecides ? scanner.calendarName() : source.name,
                          isColoredByUser ? source.color : scanner.calendarColor());
  }

  /// The event, or none for one that is broken and left out.
  std::optional<IcsEvent> read(const std::filesystem::path& file, const IcsComponent& component) {
    try {
      return readIcsEvent(file, component, zones_, toEnds_);
    } catch (const IcsError& error) {
      if (!options_.skipBroken) throw;
      addBroken(error.what() + component.label());
      return std::nullopt;
    }
  }

  void take(const IcsEvent& event, ImportTarget& target) {
    leftOut_.add(event.leftOut);
    targets_.merge(target, event.record);
  }

  void addBroken(const std::string& problem) {
    ++result_.brokenCount;
    if (++brokenInFile_ <= kMaxListedOfFile) result_.broken.push_back(problem);
  }

  void warnOfZone(const std::filesystem::path& file, const IcsComponent& component, const std::string& zone) {
    const IcsError warning(file, component.line,
                           "the time zone \"" + zone +
                               "\" is neither known nor defined in the file; its times are taken as the "
                               "phone's own");
    result_.warnings.emplace_back(warning.what());
  }

  void report(const std::filesystem::path& file, std::uint64_t bytesDone) const {
    if (!options_.progress) return;
    options_.progress({file, std::min(bytesDone, bytesTotal_), bytesTotal_, targets_.events()});
  }

  CalendarDatabase& database_;
  const ImportOptions& options_;
  ImportResult result_;
  ImportTargets targets_;
  std::uint64_t bytesBefore_ = 0;
  std::uint64_t bytesTotal_ = 0;
  // Of the present source, and of the present file.
  IcsLeftOut leftOut_;
  IcsZones zones_;
  /// What finding the ends of rules may still cost in the present file.
  WalkBudget toEnds_{kMaxStepsToEnds};
  std::uint64_t bytesInFile_ = 0;
  std::size_t brokenInFile_ = 0;
};

}  // namespace

ImportResult importCalendars(CalendarDatabase& database, const std::vector<std::filesystem::path>& paths,
                             const ImportOptions& options) {
  return Importer(database, options).run(paths);
}

}  // namespace phone
