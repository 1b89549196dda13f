#include "options/OptionParser.h"

#include "options/OptionTable.h"

#include <CLI/CLI.hpp>

#include <fstream>
#include <sstream>

namespace {

constexpr std::size_t kHelpColumn = 30;   // characters before the help of an option
constexpr std::size_t kLongestShown = 60; // characters of somebody's text in a message
constexpr char kNone = '\n';              // stands in no line
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// A text as a message shows it: short, and of one line whatever it holds.
std::string quoted(std::string text)
{
    if (text.size() > kLongestShown) text = text.substr(0, kLongestShown) + "...";
    for (char& c : text)
        if (static_cast<unsigned char>(c) < ' ') c = '?';
    return '"' + text + '"';
}

std::string unexpected(const Option& option, const std::string& given)
{
    return option.name + ": expected " + option.value.expected + ", not " + quoted(given);
}

/// What a switch is set to stands behind its name in files only.
void addTo(CLI::App& app, const Option& option, Options& options, bool inFile)
{
    const OptionValue& value = option.value;
    std::string names = option.letter ? std::string("-") + option.letter + ",--" : "--";
    names += option.name;
    if (value.hasOpposite) names += ",!--no-" + option.name;

    CLI::Option* added = nullptr;
    if (value.placeholder.empty()) {
        // CLI11 2.4 hands on a word that it does not know as 0; asked for a truth value, every version refuses it.
        const auto take = [&](std::int64_t) {
            value.read(options, app.get_option("--" + option.name)->as<bool>() ? "true" : "false");
        };
        added = app.add_flag_function(names, take, option.description());
    } else {
        const auto take = [&](const std::string& given) {
            if (!value.read(options, given)) throw CLI::ValidationError(unexpected(option, given));
        };
        added = app.add_option_function<std::string>(names, take, option.description());
    }
    if (!inFile) added->disable_flag_override();
    added->group(option.group)->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    added->trigger_on_parse(); // in the order given: of two options for one thing the later counts
    if (value.isRepeatable) added->delimiter(',')->multi_option_policy(CLI::MultiOptionPolicy::Join);
}

/// Shows an option as its row has it.
class HelpFormatter : public CLI::Formatter {
    std::string make_option_name(const CLI::Option* option, bool) const override
    {
        return findOption(option->get_lnames().front())->usage();
    }
    std::string make_usage(const CLI::App* app, std::string name) const override
    {
        return CLI::Formatter::make_usage(app, name) + '\n';
    }
    std::string make_group(std::string group, bool isPositional, std::vector<const CLI::Option*> opts) const override
    {
        return CLI::Formatter::make_group(group, isPositional, opts).substr(1); // one empty line between two are enough
    }
    std::string make_option_opts(const CLI::Option*) const override { return ""; }
};

/// The options of the command line, or those of the file, in CLI11's terms; kept in `options` when they are given.
std::unique_ptr<CLI::App> makeApp(Options& options, const std::string& description, bool inFile)
{
    auto app = std::make_unique<CLI::App>(description, "quackdash");
    app->set_help_flag(); // the table has its own
    app->allow_extras();
    for (const Option& option : optionTable())
        if (option.value.inFile || !inFile) addTo(*app, option, options, inFile);
    // Values are read as they stand: no lists, comments or sections that CLI11 would find within them or their names.
    app->get_config_formatter_base()->arrayDelimiter(kNone)->arrayBounds(kNone, kNone)->parentSeparator(kNone);
    return app;
}

/// Say of an error without a value of ours what the option that it begins with expects.
std::string complaint(const CLI::ParseError& error)
{
    std::string message = error.what();
    const std::size_t begin = message.find_first_not_of('-');
    const Option* const option = findOption(message.substr(begin, message.find_first_of(" :", begin) - begin));
    if (!option) return message;
    return option->name + ": expected " + (option->value.placeholder.empty() ? "no value" : option->value.expected);
}

/// Return what is wrong with a line of the settings file, or nothing. name: the option that it is about.
std::string parseLine(CLI::App& app, const std::string& line, std::string& name)
{
    std::istringstream first(line), second(line);
    const std::vector<CLI::ConfigItem> items = app.get_config_formatter()->from_config(first);
    // Where nothing stands before the =, CLI11 2.4 takes the whole line for a name.
    if (items.size() != 1 || items[0].name.empty() || items[0].name.starts_with('='))
        return "expected NAME = VALUE, not " + quoted(line);
    const CLI::ConfigItem& item = items[0];
    const Option* const option = findOption(item.name);
    if (!option) return "there is no option " + quoted(item.name);
    name = option->name;
    if (!option->value.inFile) return item.name + ": on the command line only";

    const bool isBare = line.find('=') == std::string::npos;
    if (isBare && !option->value.placeholder.empty()) return unexpected(*option, "");
    try {
        app.clear();
        app.parse_from_stream(second);
    } catch (const CLI::ValidationError& error) {
        return error.what();
    } catch (const std::exception&) {
        return unexpected(*option, item.inputs.empty() ? "" : item.inputs[0]);
    }
    return "";
}

bool saysNothing(const std::string& line)
{
    const std::size_t first = line.find_first_not_of(" \t\r\v\f");
    return first == std::string::npos || line[first] == '#' || line[first] == ';';
}

} // namespace

std::string parseArguments(const std::vector<std::string>& arguments, Options& options, SetWhere& where)
{
    const auto app = makeApp(options, "", false);
    try {
        app->parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::ValidationError& error) {
        return std::string("--") + error.what();
    } catch (const CLI::ParseError& error) {
        return "--" + complaint(error);
    }
    for (const Option& option : optionTable())
        if (app->get_option("--" + option.name)->count() > 0) where[option.name] = kOnCommandLine;
    const std::vector<std::string> rest = app->remaining();
    if (rest.empty()) return "";
    return (rest[0].starts_with('-') ? "there is no option " : "expected options only, not ") + quoted(rest[0]);
}

std::vector<std::string> parseSettings(const std::filesystem::path& file, Options& options, SetWhere& where)
{
    std::error_code error;
    if (!std::filesystem::exists(file, error) && !error) return {};
    std::ifstream input(file);
    std::string line;
    if (input.peek(); std::filesystem::is_directory(file, error) || input.bad() || !input.is_open())
        return {file.string() + ": expected a file that can be read"};

    std::vector<std::string> complaints;
    const auto app = makeApp(options, "", true);
    app->get_config_formatter_base()->comment(kNone); // a path or a colour may hold #
    for (int number = 1; std::getline(input, line); ++number) {
        if (number == 1 && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
        if (saysNothing(line)) continue;
        std::string name;
        const std::string fault = parseLine(*app, line, name);
        if (fault.empty()) where[name] = number;
        else complaints.push_back(file.string() + ":" + std::to_string(number) + ": " + fault);
    }
    return complaints;
}

std::string settingsText(const Options& options)
{
    Options written = options;
    const auto app = makeApp(written,
        "Settings of Quackdash, a line NAME=VALUE each; the command line beats them.\n"
        "A line that begins with # says nothing.",
        true);
    for (const Option& option : optionTable())
        if (option.value.inFile)
            app->get_option("--" + option.name)->default_str(option.value.write(options))->run_callback_for_default();
    return app->config_to_str(true, true);
}

std::string helpText()
{
    Options unused;
    const auto app = makeApp(unused, "Quackdash: car combat with ducks on one shared screen.", false);
    for (const Option& option : optionTable()) app->get_option("--" + option.name)->group(""); // not shown
    for (const Option* option : shownOptions())
        app->get_option("--" + option->name)->group(option->group)->description(option->shownHelp());
    app->formatter(std::make_shared<HelpFormatter>());
    app->get_formatter()->column_width(kHelpColumn);
    app->footer("They may also stand in $XDG_CONFIG_HOME/quackdash/quackdash.conf, or else in\n"
                "~/.config/quackdash/quackdash.conf, as lines NAME = VALUE. The command line beats them.");
    return app->help();
}
