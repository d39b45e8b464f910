#include "commands/CommandText.h"

namespace satwecvt {

namespace {

CCommandText ProgramText()
{
    return {
        {"Two files without a command are converted."},
        {"satwecvt check tower.sat tower_load.sat", "satwecvt convert tower.sat tower_load.sat",
         "satwecvt batch buildings"},
        "",
        {},
    };
}

CCommandText ConvertText()
{
    return {
        {"The outputs take their places when they are whole: a conversion that fails or is cancelled leaves older ones "
         "as they were. A summary goes to stdout, findings, failures and progress to stderr."},
        {"satwecvt convert tower.sat tower_load.sat",
         "satwecvt convert --strict -o out/tower.vkm --log out/tower.msg tower.sat tower_load.sat",
         "satwecvt convert --json - tower.sat tower_load.sat | jq .counts"},
        "",
        {
            {EExitCode::Written, "the model text file was written"},
            {EExitCode::NotConverted,
             "not converted: an input could not be opened or read, or its content makes no model; the message says "
             "which input, and where"},
            {EExitCode::WrongUsage, "wrong usage"},
            {EExitCode::Refused, "--strict: something would be lost or is doubtful; nothing was written"},
            {EExitCode::OutputIncomplete,
             "the model text file, the message log or the report could not be written completely"},
            {EExitCode::Cancelled, "cancelled with Ctrl-C; nothing was written"},
        },
    };
}

CCommandText CheckText()
{
    return {
        {"The conversion runs in memory and writes nothing. The building at a glance, what became of each kind, the "
         "balance of the loads and the findings go to stdout."},
        {"satwecvt check tower.sat tower_load.sat", "satwecvt check --strict tower.sat tower_load.sat && echo clean"},
        "",
        {
            {EExitCode::Written, "the files can be converted, with or without findings"},
            {EExitCode::NotConverted, "they cannot: the message says which input, and where"},
            {EExitCode::WrongUsage, "wrong usage"},
            {EExitCode::Refused, "--strict: something would be lost or is doubtful"},
            {EExitCode::OutputIncomplete, "the report could not be written completely"},
            {EExitCode::Cancelled, "cancelled with Ctrl-C"},
        },
    };
}

CCommandText ViewText()
{
    return {
        {"The conversion runs in memory. The page is one file that any browser opens without a network: the building "
         "as it stands in the model text file, with its loads, what was lost, and the balance of the loads.",
         "Plans are drawn to scale, one for each story, as story-KEY.svg. The folder is made when it does not exist."},
        {"satwecvt view tower.sat tower_load.sat",
         "satwecvt view -o out/tower.html --plans out tower.sat tower_load.sat"},
        "",
        {
            {EExitCode::Written, "the page, and the plans, were written, with or without findings"},
            {EExitCode::NotConverted,
             "not converted: an input could not be opened or read, or its content makes no model; the message says "
             "which input, and where"},
            {EExitCode::WrongUsage, "wrong usage"},
            {EExitCode::OutputIncomplete, "the page or a plan could not be written completely"},
            {EExitCode::Cancelled, "cancelled with Ctrl-C; nothing was written"},
        },
    };
}

CCommandText BatchText()
{
    return {
        {"A pair is converted as \"convert\" does it: the model lies beside the structure file (.vkm), the log beside "
         "the model (.msg). A line tells what came of each pair, in the order of the pairs: ok, refused (--strict), "
         "failed or cancelled. A pair that fails stops no other.",
         "Folders: each FOLDER, and every folder below it, that holds both files is a pair. Links to folders are not "
         "followed.",
         "List: one pair a line, the structure file, a tab, the load file. In a line without a tab, blanks separate "
         "the two, so names with blanks need the tab. Empty lines and lines that start with # are skipped. Relative "
         "names start from the working folder.",
         "The record has what \"convert --json\" reports of each pair, one a line, in the order of the pairs. It grows "
         "as pairs end: whatever ends the program, the lines so far are in it. Pairs that were not begun have none."},
        {"satwecvt batch buildings",
         "satwecvt batch --structure tower.sat --load tower_load.sat --json-lines night.jsonl site1 site2",
         "satwecvt batch --list pairs.txt --strict -j 4"},
        "that of the worst pair, from the worst on",
        {
            {EExitCode::Cancelled,
             "cancelled with Ctrl-C: pairs that were being read are as before, and no further ones were begun"},
            {EExitCode::OutputIncomplete, "a model, a log, the record or stdout could not be written completely"},
            {EExitCode::NotConverted,
             "a pair could not be converted, a folder could not be read, or there is no pair in one"},
            {EExitCode::Refused, "--strict: something would be lost or is doubtful; of that pair nothing was written"},
            {EExitCode::Written, "all models were written"},
            {EExitCode::WrongUsage,
             "wrong usage: a line of the list is no pair, or two pairs would write one file; nothing was converted"},
        },
    };
}

}  // namespace

CCommandText TextOf(std::string_view command)
{
    return command == "convert" ? ConvertText()
           : command == "check" ? CheckText()
           : command == "view"  ? ViewText()
           : command == "batch" ? BatchText()
                                : ProgramText();
}

}  // namespace satwecvt
