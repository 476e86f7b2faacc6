// quillet/quillet.h - the one header a host needs: every public class.
//
//   #include <quillet/quillet.h>
//   using namespace quillet;
//   String text = numberText(1.5);                  // u"1.5" under the default profile
//   auto barcode = std::make_shared<clsOptionsBarcode>();
//   barcode->setBarReduction(150);                  // clamped to 100
//   Variant saved = barcode->writeObject();         // u"<OptionsBarcode>...</OptionsBarcode>\r\n"
//
// A host may include the X11 headers first: their macros True, False, None,
// Bool, Status, Success and index are set aside while the library's headers
// are read, and are back, unchanged, after this include. (Include this header
// rather than single ones of the library after X11. Spelled after the include,
// quillet::True would still meet X11's macro; write quillet::Boolean(true).)
#pragma once

// Pushing a macro that is not defined is allowed; popping it leaves it undefined.
#pragma push_macro("True")
#pragma push_macro("False")
#pragma push_macro("None")
#pragma push_macro("Bool")
#pragma push_macro("Status")
#pragma push_macro("Success")
#pragma push_macro("index")
#pragma push_macro("rindex")
#undef True
#undef False
#undef None
#undef Bool
#undef Status
#undef Success
#undef index
#undef rindex

#include "quillet/frame/Array.h"
#include "quillet/frame/Calendar.h"
#include "quillet/frame/Clock.h"
#include "quillet/frame/Collection.h"
#include "quillet/frame/DateText.h"
#include "quillet/frame/Failure.h"
#include "quillet/frame/Like.h"
#include "quillet/frame/NumberText.h"
#include "quillet/frame/RegionalSettings.h"
#include "quillet/frame/TextCompare.h"
#include "quillet/frame/Variant.h"
#include "quillet/frame/checked.h"
#include "quillet/frame/clsEnum.h"
#include "quillet/frame/clsQDSEnums.h"
#include "quillet/frame/convert.h"
#include "quillet/frame/enums.h"
#include "quillet/frame/hostenums.h"
#include "quillet/frame/print.h"
#include "quillet/frame/trim.h"
#include "quillet/frame/types.h"
#include "quillet/frame/utf8.h"

#include "quillet/platform/Base64.h"
#include "quillet/platform/CodePage.h"
#include "quillet/platform/ListControl.h"

#include "quillet/text/clsNumericHandling.h"
#include "quillet/text/clsString.h"

#include "quillet/persistence/clsBlockInfo.h"
#include "quillet/persistence/clsBlockReader.h"
#include "quillet/persistence/clsBufferIO.h"
#include "quillet/persistence/clsFontSymbol.h"
#include "quillet/persistence/clsHashedObject.h"
#include "quillet/persistence/clsPoint.h"
#include "quillet/persistence/clsRulerSettings.h"
#include "quillet/persistence/clsSelectionRange.h"
#include "quillet/persistence/clsTokenValuePair.h"

#include "quillet/datetime/clsDate.h"

#include "quillet/labeldata/clsConstants.h"
#include "quillet/labeldata/clsOptionsBarcode.h"
#include "quillet/labeldata/clsUccAISpec.h"

#include "quillet/settings/clsDesignContext.h"
#include "quillet/settings/clsDrawAttributes.h"
#include "quillet/settings/clsEPL2.h"
#include "quillet/settings/clsLogManagementSettings.h"
#include "quillet/settings/clsMaskProperties.h"
#include "quillet/settings/clsOptionsLayers.h"
#include "quillet/settings/clsOptionsPrinter.h"
#include "quillet/settings/clsOptionsSignaturePad.h"
#include "quillet/settings/clsPrintCounter.h"
#include "quillet/settings/clsSystemData.h"
#include "quillet/settings/clsZPL2.h"

#pragma pop_macro("rindex")
#pragma pop_macro("index")
#pragma pop_macro("Success")
#pragma pop_macro("Status")
#pragma pop_macro("Bool")
#pragma pop_macro("None")
#pragma pop_macro("False")
#pragma pop_macro("True")
