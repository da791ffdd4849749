#pragma once

#include <QtGlobal>

namespace Progress {

// A count of units of work.
using Steps = quint64;

} // namespace Progress

using Progress::Steps;
