#include "ocore/Printer/PrinterDefaults.h"

#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/User/User.h"
#include "resources/ids.h"

namespace zent {

PrinterDefaults::PrinterDefaults(const PrinterModel& model, std::uint32_t form)
    : m_model(model.clone()), m_form(form) {
    addCommonDefaults();
    m_model->addFactoryDefaults(m_settings, m_form);
    addUserDefaults();
    m_settings.setStockSize(StockSize(User::getDefaultStockSize()));
}

void PrinterDefaults::addCommonDefaults() {
    m_settings.setLong(_FI(feature::copies), 1);
    m_settings.setFeatureValue(_FI(feature::finishings), FeatureValue(value::finishingNone));
    m_settings.setFeatureValue(_FI(feature::sheetCollate), FeatureValue(value::collated));
    m_settings.setFeatureValue(_FI(feature::sides), FeatureValue(value::oneSided));
    m_settings.setString(_FI(feature::jobName), m_resources.getString(IDS_UNTITLED_JOB));
    m_settings.setFeatureValue(_FI(feature::saveDisposition), FeatureValue(value::saveNone));
    m_settings.setFeatureValue(_FI(feature::mediaColor), FeatureValue(value::mediaWhite));
    m_settings.setFeatureValue(_FI(feature::mediaType), FeatureValue(value::mediaStationery));
    m_settings.setFeatureValue(_FI(feature::mediaHoleCount), FeatureValue(value::noHoles));
}

void PrinterDefaults::addUserDefaults() {
    CXString user = User::getLogonName();
    if (user.isEmpty()) {
        user = m_resources.getString(IDS_UNKNOWN_USER);
    }
    m_settings.setString(_FI(feature::requestingUserName), user);
    m_settings.setString(_FI(feature::jobRecipientName), user);
}

} // namespace zent
