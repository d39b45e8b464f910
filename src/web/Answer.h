#pragma once

#include "conversion/Outcome.h"
#include "picture/ColumnBytes.h"
#include "satwecvt/ConversionReport.h"

namespace satwecvt {

/// How a conversion went, in columns: one value each, but for remarks and messages.
///
///   answer.isWhole    1: there is a model; 0: there is a failure
///   answer.hasLog     1: something could not be converted, so that there is a log
///   answer.source     of the failure: 0 the structure file, 1 the load file, 2 neither
///   answer.line       of that file; 0: none
///   answer.lacksMemory 1: memory was too little
///   answer.failure    a sentence
///   remark.source, remark.line, remark.text
///                     of a conversion that failed, the first losses and doubts that it told: they may say why
///   answer.modelName  under which the model is saved
///   answer.logName    under which the log is saved
///   answer.result     of the conversion, as a host gets it: 0 or -1
///   answer.messages   that a host would have shown
///   answer.linesRead  the physical lines that were asked for
///   answer.steps      how often the progress window was told of a line
CColumnBytes AnswerOf(const COutcome& outcome, const CConversionPaths& saved);

}  // namespace satwecvt
