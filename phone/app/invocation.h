// What every verb of the command shares: the phone it works on, and the plug-in it loads.
#pragma once

#include <filesystem>
#include <string>

#include "phone/app/terminal_style.h"

namespace CLI {
class App;
}

namespace phone {

/// The options that stand before or behind every verb.
class Invocation {
 public:
  /// Adds the options to the command. The invocation must outlive it.
  void addOptionsTo(CLI::App& command);

  /// The folder that stands for the phone's "/", whether it is there or not: --root, else $TAVIMO_PHONE, else
  /// ./phone-root.
  std::filesystem::path rootName() const;
  /// The same, made sure to be a phone. Throws std::runtime_error with advice when it is none.
  std::filesystem::path root() const;
  /// The plug-in's library: --plugin, else $TAVIMO_PLUGIN, else the one that was built with this command.
  std::filesystem::path plugin() const;

  /// How the standard output is to look: --color.
  TerminalStyle style() const { return TerminalStyle(colorOption_); }

  /// Starts Foundation for work on the phone's files; no host runs. Throws like root().
  void openPhone() const;

 private:
  std::string rootOption_;
  std::string pluginOption_;
  std::string colorOption_ = "auto";
};

/// Adds a verb to the command (or to another verb) with an example at the end of its help. The verb takes the
/// options of the command, too.
CLI::App* addVerb(CLI::App& command, const std::string& name, const std::string& description,
                  const std::string& example);

}  // namespace phone
