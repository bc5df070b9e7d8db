#include "ocore/Stock/StockType.h"

namespace zent {

CXString stockTypeToString(StockType type) {
    switch (type) {
    case StockType::transient:
        return u"Transient";
    case StockType::user:
        return u"User";
    case StockType::printer:
        return u"Printer";
    }
    return u"UNKNOWN!";
}

} // namespace zent
