#pragma once

#include "ocore/Faults/TarvoException.h"

namespace zent {

/// An exception class whose id and result code are constants.
// NOLINTBEGIN(bugprone-macro-parentheses): the arguments are class names
#define ZENT_EXCEPTION_CLASS(Name, Base, id, code)                                                 \
    class Name : public Base {                                                                     \
    public:                                                                                        \
        using Base::Base;                                                                          \
        ResultCode getResultCode() const override { return code; }                                 \
        CXString getErrorId() const override { return CXString(u##id); }                           \
    }
// NOLINTEND(bugprone-macro-parentheses)

/// Failures of reading a file as a whole.
class FileException : public TarvoException {
public:
    using TarvoException::TarvoException;
    ReportTexts getReportTexts() const override;
};

class ResourceAcquisitionException : public TarvoException {
public:
    using TarvoException::TarvoException;
    ResultCode getResultCode() const override { return ZENT_ERR_RESOURCE; }
    CXString getErrorId() const override { return u"005:000"; }
    ReportTexts getReportTexts() const override;
};

/// Failures of the preference store. The second line of the message is for users: where the store
/// lies and what is wrong with it.
class RegistryRequestException : public TarvoException {
public:
    using TarvoException::TarvoException;
    ResultCode getResultCode() const override { return ZENT_ERR_REGISTRY; }
    CXString getErrorId() const override { return u"020:000"; }
    ReportTexts getReportTexts() const override;
    /// The message's second line.
    CXString getExplanation() const override;
};

// clang-format off
ZENT_EXCEPTION_CLASS(ExceededNumberOfDlgItems,                    TarvoException, "007:000", ZENT_ERR_INTERNAL_OTHER);
ZENT_EXCEPTION_CLASS(UnknownCaseException,                        TarvoException, "008:000", ZENT_ERR_INTERNAL_INDEX);
ZENT_EXCEPTION_CLASS(AttributeTypeMismatchException,              TarvoException, "009:000", ZENT_ERR_ATTRIBUTE_TYPE);
ZENT_EXCEPTION_CLASS(NodeAccessOutOfBoundsException,              TarvoException, "010:000", ZENT_ERR_INTERNAL_INDEX);
ZENT_EXCEPTION_CLASS(InvalidAttributeIdException,                 TarvoException, "011:000", ZENT_ERR_ATTRIBUTE_ID);
ZENT_EXCEPTION_CLASS(UnknownFeatureRequestException,              TarvoException, "012:000", ZENT_ERR_UNKNOWN_FEATURE);
ZENT_EXCEPTION_CLASS(DuplicateFeatureValueDBEntryException,       TarvoException, "013:000", ZENT_ERR_DUPLICATE_VALUE);
ZENT_EXCEPTION_CLASS(MissingCapabilityDataException,              TarvoException, "014:000", ZENT_ERR_CAPABILITY_DATA);
ZENT_EXCEPTION_CLASS(MissingOrBadCompressedBufferFooterException, TarvoException, "017:000", ZENT_ERR_COMPRESSION);
ZENT_EXCEPTION_CLASS(CompressionException,                        TarvoException, "018:000", ZENT_ERR_COMPRESSION);
ZENT_EXCEPTION_CLASS(IndexOutOfBoundsException,                   TarvoException, "019:000", ZENT_ERR_INTERNAL_INDEX);
ZENT_EXCEPTION_CLASS(ResourceLibraryConstructionException,        TarvoException, "021:000", ZENT_ERR_RESOURCE_LIBRARY);
ZENT_EXCEPTION_CLASS(CreateFileForReadingException,               FileException,  "022:001", ZENT_ERR_FILE_OPEN_READ);
ZENT_EXCEPTION_CLASS(ReadFileException,                           FileException,  "022:002", ZENT_ERR_FILE_READ);
ZENT_EXCEPTION_CLASS(ProcessTokenRequestException,                TarvoException, "023:000", ZENT_ERR_INTERNAL_OTHER);
ZENT_EXCEPTION_CLASS(UserInformationRequestException,             TarvoException, "024:000", ZENT_ERR_USER_INFORMATION);
ZENT_EXCEPTION_CLASS(InvalidZentSessionException,                 TarvoException, "025:000", ZENT_ERR_SESSION);
ZENT_EXCEPTION_CLASS(InvalidTarvoJtSettingsException,             TarvoException, "026:000", ZENT_ERR_SETTINGS);
ZENT_EXCEPTION_CLASS(MissingOrBadPersistentSettingsFormatException, TarvoException, "027:000", ZENT_ERR_STATE_FORMAT);
ZENT_EXCEPTION_CLASS(NotEnoughBytesForDesiredDataTypeException,   TarvoException, "028:000", ZENT_ERR_INTERNAL_OTHER);
ZENT_EXCEPTION_CLASS(PreferenceDataTypeMismatchException,         TarvoException, "029:000", ZENT_ERR_PREFERENCE_TYPE);
// clang-format on

#undef ZENT_EXCEPTION_CLASS

// These classes get texts of their own when a failure is shown to the user. The library raises none
// of them itself: a class that does derives from one, and gives its id and result code.
class DevModeOverflowException : public TarvoException {
public:
    using TarvoException::TarvoException;
    ReportTexts getReportTexts() const override;
};
class SpoolDataException : public TarvoException {
public:
    using TarvoException::TarvoException;
    ReportTexts getReportTexts() const override;
};

} // namespace zent
