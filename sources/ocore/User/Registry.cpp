#include "ocore/User/Registry.h"

#include <utility>

#include "ocore/Faults/Exceptions.h"
#include "ocore/Faults/Trace.h"

namespace zent {

namespace {

using Status = platform::PreferenceStatus;

void traceError(const CXString& key, const platform::PreferenceResult& result) {
    if (result.error != 0 && trace::isOutputEnabled()) {
        trace::output(platform::explainPreferenceFailure(key, result) + u"\r\n");
    }
}

} // namespace

bool Registry::getValue(const CXString& key, const CXString& name, ByteBuffer& value) const {
    platform::StoredPreference stored;
    const platform::PreferenceResult result = platform::readPreference(key, name, stored);
    traceError(key, result);
    if (result.status == Status::valueFailed) {
        Raise<RegistryRequestException>()("Registry::getValue(): Call to RegQueryValueEx(%s) "
                                          "failed with result of %ld (0x%lx).\r\n%s\r\n",
                                          name, result.error, result.error,
                                          platform::explainPreferenceFailure(key, result));
    }
    value = ByteBuffer(std::move(stored.bytes));
    return result.status == Status::done;
}

void Registry::setValue(const CXString& key, const CXString& name, std::uint32_t type,
                        const ByteBuffer& value) const {
    const platform::PreferenceResult result =
        platform::writePreference(key, name, type, value.bytes());
    traceError(key, result);
    if (result.status == Status::keyFailed) {
        Raise<RegistryRequestException>()("Registry::setValue(): Call to RegCreateKeyEx(%s) "
                                          "failed with result of %ld (0x%lx).\r\n%s\r\n",
                                          key, result.error, result.error,
                                          platform::explainPreferenceFailure(key, result));
    }
    if (result.status == Status::valueFailed) {
        Raise<RegistryRequestException>()("Registry::setValue(): Call to RegSetValueEx(%s) failed "
                                          "with result of %ld (0x%lx).\r\n%s\r\n",
                                          name, result.error, result.error,
                                          platform::explainPreferenceFailure(key, result));
    }
}

std::int32_t Registry::getLongValue(const CXString& key, const CXString& name,
                                    std::int32_t defaultValue) const {
    ByteBuffer value;
    getValue(key, name, value);
    return value.isEmpty() ? defaultValue : value.getAsLongValue();
}

CXString Registry::getStringValue(const CXString& key, const CXString& name,
                                  const CXString& defaultValue) const {
    ByteBuffer value;
    if (!getValue(key, name, value)) {
        return defaultValue;
    }
    // The terminator is cut, since other programs, such as the registry editor, store it as a part
    // of the value.
    CXString text = value.getAsString();
    text.trimRight(u'\0');
    return text;
}

ByteBuffer Registry::getDataValue(const CXString& key, const CXString& name,
                                  const ByteBuffer& defaultValue) const {
    ByteBuffer value;
    return getValue(key, name, value) ? value : defaultValue;
}

void Registry::setLongValue(const CXString& key, const CXString& name, std::int32_t value) const {
    setValue(key, name, registryType::number, ByteBuffer::fromLong(value));
}

void Registry::setStringValue(const CXString& key, const CXString& name,
                              const CXString& value) const {
    setValue(key, name, registryType::text, ByteBuffer::fromString(value));
}

void Registry::setDataValue(const CXString& key, const CXString& name,
                            const ByteBuffer& value) const {
    setValue(key, name, registryType::binary, value);
}

} // namespace zent
