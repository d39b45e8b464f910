#include "manual/ManPage.h"

#include <gtest/gtest.h>

#include <string>

namespace satwecvt {
namespace {

TEST(ManPage, IsTheTableInTheSectionsOfAManPage)
{
    CProgramEntry see;
    see.program.name = "see";
    see.program.description = "Sees";
    see.program.text.paragraphs = {".sat is fine."};
    see.version = "see 1.0";
    see.commands.resize(1);
    CCommandEntry& look = see.commands[0];
    look.name = "look";
    look.description = "Look at it";
    look.arguments = {{{}, "FILE", "what to look at", "", {}, true, false}};
    look.options = {{{"-l", "--log"}, "LOG", "a log", "", {}, false, false}};
    look.text = {{"It looks."}, {"see look -l 'a b'"}, "from the worst on", {{EExitCode::Cancelled, "cancelled"}}};
    const std::string page = ManPage(see);
    EXPECT_TRUE(page.starts_with(R"(.TH SEE 1 "" "see 1.0" "User Commands"
.nh
.ad l
.SH NAME
see \- sees
.SH SYNOPSIS
\fBsee look\fR [OPTIONS] FILE
.br
\fBsee\fR [OPTIONS]
.SH DESCRIPTION
Sees.
.PP
\&.sat is fine.
.SH OPTIONS
.SH COMMANDS
.SS look
Look at it.
.TP
\fIFILE\fR
what to look at
.TP
\fB\-l\fR, \fB\-\-log\fR \fILOG\fR
a log
.PP
It looks.
.SH EXIT STATUS
.SS Of look
From the worst on:
.TP
\fB130\fR
cancelled
.SH FILES
)")) << page;
    EXPECT_TRUE(page.ends_with(".SH EXAMPLES\n.EX\nsee look \\-l \\(aqa b\\(aq\n.EE\n")) << page;
}

}  // namespace
}  // namespace satwecvt
