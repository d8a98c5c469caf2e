// The table of the commands, and what their helps say.
#include "cli/commands.h"

namespace kesto::cli {
namespace {

constexpr Option kProject = {"project", "PATH",
                             "a project file, or a folder (default: the current one)"};
constexpr Option kIncludePath = {"include-path", "FOLDERS",
                                 "searched for classes, instead of the project's"};
constexpr Option kSourcePath = {"source-path", "FOLDERS",
                                "searched beside the project, instead of the project's"};
constexpr Option kOf = {"of", "FILE", "take the paths of that file's node"};
constexpr Option kSources = {"sources", "MASKS", "files of sources (default: *.cpp;*.cc;*.c)"};
constexpr Option kHeaders = {"headers", "MASKS", "files of headers (default: *.h;*.rh)"};
constexpr Option kNoRecurse = {"no-recurse", nullptr, "leave the folders below out"};
constexpr Option kVerbose = {"verbose", nullptr, "name the files that were written"};

constexpr Option kCommonOptions[] = {{"json", nullptr, "one JSON object a line, in UTF-8"},
                                     {"help", nullptr, "this"}};
constexpr Option kFunctionOptions[] = {{"unsorted", nullptr, "in the order of the file"}};
constexpr Option kFindOptions[] = {kProject, kIncludePath, kSourcePath, kOf,
                                   kSources, kHeaders,     kNoRecurse};
constexpr Option kXrefOptions[] = {kProject, kSources, kNoRecurse};
constexpr Option kHtmlOptions[] = {
    {"filters", "MASKS", "files to read (default: the project's, else *.cpp;*.h)"},
    {"name", "NAME", "the project's name (default: its file's or folder's)"},
    kVerbose};
constexpr Option kClassesOptions[] = {kVerbose};
constexpr Option kStampOptions[] = {
    {"after", "NUMBER", "the build number goes on after this one (default: 0)"}, kVerbose};
constexpr Option kKeywordsOptions[] = {
    {"write", nullptr, "write the keyword file beside FILE instead"},
    {"force", nullptr, "with --write: over one with descriptions, too"}};
constexpr Option kCompleteOptions[] = {
    {"keywords", "FILE...", "the keyword files; - is standard input", true},
    {"insert", nullptr, "what the key would insert, instead of the words"}};
constexpr Option kTasksOptions[] = {
    {"report", nullptr, "what goes on today, by UTC, as the flash says it"},
    {"day", "YYYY-MM-DD", "the report of another day"},
    {"counts", nullptr, "how many there are of each state"},
    {"states", "STATES", "of todo,coded,tested,ended those with these states"},
    {"sort", "ORDER", "by state, start, end, priority or type"},
    {"reverse", nullptr, "the order turned round"}};
constexpr Option kStatusOptions[] = {
    {"server", "FOLDER", "the server's folder (default: the project's)"},
    {"filters", "MASKS", "the files that are exchanged"},
    {"send", nullptr, "the list of what to send alone"},
    {"get", nullptr, "the list of what to get alone"}};

constexpr Command kCommands[] = {
    {"functions", "FILE...", 1, kAnyNumber, "List the functions and methods of sources",
     "By class, then by name, as FILE:LINE:CLASS::NAME. - is standard input.\n", kFunctionOptions,
     runFunctions},
    {"includes",
     "FILE...",
     1,
     kAnyNumber,
     "List the files that sources include",
     "As they are named there, behind FILE: where there are several. - is standard input.\n",
     {},
     runIncludes},
    {"find", "function|method|class NAME", 2, 2, "Find where a name is defined",
     "As FILE:LINE:TEXT: the first function or class of that name, and every method.\n"
     "Functions are sought in the project's folder and on its source path, methods in\n"
     "the folder, and classes on the include and source paths alone.\n",
     kFindOptions, runFind},
    {"xref", "NAME", 1, 1, "Find where a name is used",
     "As FILE:LINE:TEXT: the indented lines of the project's sources that hold the name.\n",
     kXrefOptions, runCrossReference},
    {"html", "[PATH]", 0, 1, "Write the documentation site of a project",
     "PATH is a project file or a folder, the current one by default. The site is its\n"
     "folder kHTML.\n",
     kHtmlOptions, runHtml},
    {"classes", "[PATH]", 0, 1, "Write the classes of a project's dialogs",
     "PATH is a project file or a folder, the current one by default. rc.h and rc.cpp\n"
     "there, and rcNAME.h and rcNAME.cpp in each folder NAME directly in it, are made\n"
     "anew where a script is younger.\n",
     kClassesOptions, runClasses},
    {"stamp", "[PATH]", 0, 1, "Give a project's versions the next build number",
     "PATH is a project file or a folder, the current one by default. Every VERSION.RC\n"
     "below its folder is made anew; its first text stays as VERSION.BAK.\n",
     kStampOptions, runStamp},
    {"keywords", "FILE", 1, 1, "List the keywords of a source",
     "The lines of its keyword file. - is standard input.\n", kKeywordsOptions, runKeywords},
    {"complete", "PREFIX", 1, 1, "List the keywords that begin with a text",
     "Each with its description behind a tab, where it has one.\n", kCompleteOptions, runComplete},
    {"tasks", "PROJECT", 1, 1, "List the tasks of a project",
     "PROJECT is a project file or its folder. A line has name, type, state, priority,\n"
     "first and last day, with tabs between; a public task's state stands in capitals.\n"
     "States and order are those of the task list, unless others are given.\n",
     kTasksOptions, runTasks},
    {"status", "PROJECT", 1, 1, "Tell how a project differs from its groupware server",
     "PROJECT is a project file or its folder. A line has \"send\", name, age and request\n"
     "or \"get\", name, age, \"locked\" and advice, with tabs between. Nothing is changed.\n",
     kStatusOptions, runStatus},
};

}  // namespace

const std::span<const Option> common_options = kCommonOptions;
const std::span<const Command> commands = kCommands;

}  // namespace kesto::cli
