// quillet/quillet.h - the one header a host needs.
//
//   #include <quillet/quillet.h>
//   using namespace quillet;
//   String text = numberText(1.5);                  // u"1.5"
//   Double value = numericPrefix(u"12.5kg");        // 12.5
#pragma once

#include "quillet/frame/Array.h"
#include "quillet/frame/Collection.h"
#include "quillet/frame/DateText.h"
#include "quillet/frame/Failure.h"
#include "quillet/frame/NumberText.h"
#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/TextCompare.h"
#include "quillet/frame/Variant.h"
#include "quillet/frame/checked.h"
#include "quillet/frame/convert.h"
#include "quillet/frame/hostenums.h"
#include "quillet/frame/types.h"
#include "quillet/frame/utf8.h"
