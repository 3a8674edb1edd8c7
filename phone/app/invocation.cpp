#include "phone/app/invocation.h"

#include <CLI/CLI.hpp>
#include <cstdlib>

#include "phone/foundation/foundation.h"

namespace phone {

namespace {

namespace fs = std::filesystem;

std::string environment(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? "" : value;
}

}  // namespace

void Invocation::addOptionsTo(CLI::App& command) {
  command
      .add_option("--root", rootOption_,
                  "The folder that stands for the phone's \"/\"; else $TAVIMO_PHONE, else ./phone-root")
      ->type_name("FOLDER");
  command
      .add_option("--plugin", pluginOption_,
                  "The plug-in to load; else $TAVIMO_PLUGIN, else the one built with this command")
      ->type_name("FILE");
  command
      .add_option("--color", colorOption_,
                  "Bold titles and calendars' colours; auto: on a terminal, unless $NO_COLOR is set")
      ->type_name("WHEN")
      ->check(CLI::IsMember({"auto", "always", "never"}))
      ->capture_default_str();
}

fs::path Invocation::rootName() const {
  if (!rootOption_.empty()) return rootOption_;
  const std::string named = environment("TAVIMO_PHONE");
  return named.empty() ? "phone-root" : named;
}

fs::path Invocation::root() const {
  const fs::path root = rootName();
  std::error_code error;
  if (!fs::is_directory(root / "var/mobile/Library", error)) {
    if (error == std::errc::permission_denied || error == std::errc::too_many_symbolic_link_levels) {
      throw std::runtime_error("cannot look for a phone in " + root.string() + ": " + error.message());
    }
    throw std::runtime_error("there is no phone in " + root.string() +
                             ": make one with \"phone create --root " + root.string() +
                             "\", or name another with --root or $TAVIMO_PHONE");
  }
  return fs::absolute(root);
}

fs::path Invocation::plugin() const {
  if (!pluginOption_.empty()) return pluginOption_;
  const std::string named = environment("TAVIMO_PLUGIN");
  if (!named.empty()) return named;
  return fs::read_symlink("/proc/self/exe").parent_path() / TAVIMO_PLUGIN_BESIDE;
}

void Invocation::openPhone() const { startFoundation({.root = root()}); }

CLI::App* addVerb(CLI::App& command, const std::string& name, const std::string& description,
                  const std::string& example) {
  CLI::App* const verb = command.add_subcommand(name, description);
  verb->fallthrough();
  verb->footer("Example:\n  " + example +
               "\n\n--root, --plugin and --color (see \"phone --help\") may stand here, too.");
  return verb;
}

}  // namespace phone
