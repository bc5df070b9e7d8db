#include "ocore/Stock/StockMatch.h"

namespace zent {

CXString matchToString(StockMatch match) {
    switch (match) {
    case StockMatch::basic:
        return u"basic";
    case StockMatch::nextBest:
        return u"next best";
    case StockMatch::best:
        return u"best";
    case StockMatch::none:
        break;
    }
    return u"no match";
}

} // namespace zent
