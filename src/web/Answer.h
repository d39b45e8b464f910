#pragma once

#include "picture/ColumnBytes.h"
#include "satwecvt/ConversionReport.h"

#include <string>

namespace satwecvt {

/// How a conversion went, in columns: one value each, but for the messages.
///
///   answer.isWhole    1: there is a model; 0: there is a failure
///   answer.hasLog     1: something could not be converted, so that there is a log
///   answer.source     of the failure: 0 the structure file, 1 the load file, 2 neither
///   answer.line       of that file; 0: none
///   answer.failure    a sentence
///   answer.modelName  under which the model is saved
///   answer.logName    under which the log is saved
///   answer.result     of the conversion, as a host gets it: 0 or -1
///   answer.messages   that a host would have shown
///   answer.linesRead  the physical lines that were asked for
///   answer.steps      how often the progress window was told of a line
CColumnBytes AnswerOf(const CConversionReport& report, const CConversionPaths& saved);

}  // namespace satwecvt
