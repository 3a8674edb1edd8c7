#include "phone/app/manual.h"

#include <sstream>

#include "phone/app/command_tree.h"
#include "phone/app/version.h"

namespace phone {

namespace {

/// The text as it is to be seen: no character of it means anything to the formatter.
std::string literal(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '\\') {
      escaped += "\\e";
    } else if (c == '-') {
      // Else it becomes a hyphen, which no shell takes for an option's.
      escaped += "\\-";
    } else if (c == '"') {
      escaped += "\\(dq";
    } else {
      if ((c == '.' || c == '\'') && (escaped.empty() || escaped.back() == '\n')) escaped += "\\&";
      escaped += c;
    }
  }
  return escaped;
}

std::string bold(const std::string& text) { return "\\fB" + literal(text) + "\\fR"; }
std::string italic(const std::string& text) { return "\\fI" + literal(text) + "\\fR"; }

std::string valueText(const ArgumentDescription& argument) {
  if (argument.choices.empty()) return italic(argument.value);
  std::string all;
  for (const std::string& choice : argument.choices) all += (all.empty() ? "" : "|") + bold(choice);
  return all;
}

class ManualWriter {
 public:
  std::string write(const VerbDescription& command) {
    page_ << ".TH PHONE 1 \"\" \"Tavimo " << kVersion << "\" \"Stand\\-in phone\"\n"
          << ".SH NAME\nphone \\- stand\\-in phone for Tavimo, the lock screen plug\\-in\n"
          << ".SH SYNOPSIS\n"
          << bold("phone") << " [" << italic("OPTION") << "]... " << italic("VERB") << " ["
          << italic("ARGUMENT") << "]...\n"
          << ".SH DESCRIPTION\n"
          << literal(command.meaning) << "\n"
          << ".SH OPTIONS\nThey may stand before or behind every verb.\n";
    for (const ArgumentDescription& option : command.options) writeArgument(option);
    page_ << ".SH VERBS\n";
    for (const VerbDescription& verb : command.verbs) writeVerb(verb, command.name);
    page_ << ".SH EXIT STATUS\n"
          << ".TP\n.B 0\nDone.\n.TP\n.B 1\nIt could not be done.\n.TP\n.B 2\nIt was used wrongly.\n"
          << ".SH EXAMPLES\n";
    writeExamples(command.examples);
    return page_.str();
  }

 private:
  void writeVerb(const VerbDescription& verb, const std::string& before) {
    const std::string words = before + " " + verb.name;
    // A verb with verbs below it does nothing by itself.
    if (verb.verbs.empty()) {
      page_ << ".SS " << bold(words);
      for (const ArgumentDescription& argument : verb.arguments) {
        page_ << (argument.isRequired ? " " : " [") << italic(argument.value)
              << (argument.isList ? "..." : "") << (argument.isRequired ? "" : "]");
      }
      page_ << "\n" << literal(verb.meaning) << ".\n";
      for (const ArgumentDescription& argument : verb.arguments) writeArgument(argument);
      for (const ArgumentDescription& option : verb.options) {
        // Said once, for all verbs.
        if (option.names.back() != "--help") writeArgument(option);
      }
      page_ << ".PP\nExample:\n.PP\n";
      writeExamples(verb.examples);
    }
    for (const VerbDescription& below : verb.verbs) writeVerb(below, words);
  }

  void writeArgument(const ArgumentDescription& argument) {
    std::string label;
    for (const std::string& name : argument.names) label += (label.empty() ? "" : ", ") + bold(name);
    if (argument.names.empty() || !argument.value.empty()) {
      label += (label.empty() ? "" : " ") + valueText(argument);
    }
    page_ << ".TP\n" << label << "\n" << literal(argument.meaning);
    if (!argument.fallback.empty()) page_ << " (default: " << literal(argument.fallback) << ")";
    if (argument.isRequired && !argument.names.empty()) page_ << " (required)";
    page_ << ".\n";
  }

  void writeExamples(const std::vector<std::string>& examples) {
    page_ << ".nf\n.RS\n";
    for (const std::string& line : examples) page_ << literal(line) << "\n";
    page_ << ".RE\n.fi\n";
  }

  std::ostringstream page_;
};

}  // namespace

std::string manualPage(const VerbDescription& command) { return ManualWriter().write(command); }

}  // namespace phone
