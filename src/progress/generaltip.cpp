#include "generaltip.h"

QPointer<GeneralTip> GeneralTip::it;
