#pragma once

#include "ZENT_API/ZENTSession.h"
#include "plugin_ui/Reports/BoxCapture.h"
#include "plugin_ui/Reports/CurrentWindowSystem.h"
#include "support/DialogUser.h"
#include "support/LibraryTesting.h"
#include "support/OpenDialog.h"
#include "support/Screenshots.h"

namespace zent::test {

/// A session whose ticket is empty, of a user who prefers to fill in everything. Message boxes are
/// captured, and answered with OK.
class DialogSession {
public:
    explicit DialogSession(std::uint32_t model = 1) {
        EXPECT_EQ(fnOpenSession(27, model, ZENT_PDL_MONOCHROME_PCL, ZENT_INSTRUCTIONS_XML, 1,
                                nullptr, 1, &m_handle),
                  ZENT_OK);
        settings().setAttrNodeList(AttrNodeList());
        for (const char16_t* const filledIn : {u"JOB_NAME_PREFERENCE", u"USE_LOGON_NAME_PREFERENCE",
                                               u"USE_LOGON_NAME_PREFERENCE_RECIPIENT"}) {
            prefer(filledIn, false);
        }
    }
    ~DialogSession() { EXPECT_EQ(fnCloseSession(&m_handle), ZENT_OK); }
    DialogSession(const DialogSession&) = delete;
    DialogSession& operator=(const DialogSession&) = delete;

    ZentSessionType handle() const { return m_handle; }
    ZENTSession& session() const { return ZENTSession::getSessionObject(m_handle); }
    FeatureSettings& settings() const { return session().settings(); }
    std::string ticket() const { return textOfList(*settings().getAttrNodeList()); }
    void setTicket(std::string_view text) const { settings().setAttrNodeList(listOf(text)); }
    void prefer(const char16_t* name, bool isPreferred = true) const {
        session().getUserPreferences()->setBooleanPreference(name, isPreferred);
    }

    ZentResult invoke(std::uint32_t kind = ZENT_DIALOG_JOB_NOTES) const {
        return fnInvokeTarvoJobTicketDialog(m_handle, kind, nullptr, 0);
    }

    const std::vector<ShownBox>& boxes() const { return m_boxes.shown(); }

private:
    ScratchUser m_preferences;
    BoxCapture m_boxes;
    ZentSessionType m_handle = nullptr;
};

/// Puts a text in the place of what an edit item holds, with the keyboard.
inline void retype(platform::WindowHandle dialog, std::uint16_t item, std::u16string_view text) {
    at(dialog, item).focus();
    const auto length = static_cast<std::int32_t>(at(dialog, item).getText().size());
    at<platform::TextItem>(dialog, item).selectText(0, length);
    user::press(dialog, user::Key::remove);
    user::type(dialog, item, text);
}

} // namespace zent::test
