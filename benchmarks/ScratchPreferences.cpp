#include "ScratchPreferences.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

#include "TicketSession.h"

namespace zent::bench {

ScratchPreferences::ScratchPreferences() {
    std::string path = (std::filesystem::temp_directory_path() / "zent-bench-XXXXXX").string();
    if (mkdtemp(path.data()) == nullptr) {
        throw std::runtime_error("no folder can be made for the preferences");
    }
    m_path = path;
    useStored();
    const TicketSession session;
    require(fnSetPreferenceBoolValue(session.session(), u"JOB_NAME_PREFERENCE", 1));
    require(fnSetPreferenceNumberValue(session.session(), u"TOOL_BAR_PREFERENCE", 1));
    require(fnSetPreferenceStringValue(session.session(), u"PREFERRED_JOB_TICKET", u"ticket"));
    useNone();
}

ScratchPreferences::~ScratchPreferences() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

void ScratchPreferences::useNone() const { use("none"); }
void ScratchPreferences::useStored() const { use("stored"); }

void ScratchPreferences::use(const char* folder) const {
    setenv("XDG_CONFIG_HOME", (m_path / folder).c_str(), 1);
}

} // namespace zent::bench
