// quillet/frame/clsEnum.h - the class that carried the library's shared
// enumerations in the original interface.
//
// The enumerations now live at namespace scope in enums.h, so the class is
// empty: it remains only so that the interface keeps every class name.
#pragma once

#include "quillet/frame/enums.h"

namespace quillet {

class clsEnum {};

}  // namespace quillet
