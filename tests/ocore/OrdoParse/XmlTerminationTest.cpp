#include "ocore/OrdoParse/ZNXMLInterface.h"
#include "support/OrdoDocument.h"

namespace zent::test {
namespace {

TEST(XmlTerminationTest, EndsTheXmlSystemForGood) {
    if (testing::UnitTest::GetInstance()->test_to_run_count() != 1) {
        GTEST_SKIP() << "no document can be made in this process afterwards; run it alone";
    }
    ZNXMLInterface::Terminate(); // nothing to end yet
    ZNXMLInterface::Terminate();
    EXPECT_EQ(&ZNXMLInterface::Instance(), &ZNXMLInterface::Instance());
    useOrdoDtd();
    const std::string ticket = writeOrdo(readOrdo(ordoDocument("")));
    EXPECT_FALSE(ticket.empty());

    ZNXMLInterface::Terminate();
    const std::string ended = "20: ZNXMLInterface::Instance(): XML system already terminated once. "
                              "Process can't create another one!\r\n";
    EXPECT_EQ(ordoFailure([] { ZNXMLInterface::Instance(); }), ended);
    EXPECT_EQ(ordoFailure([&] { readOrdo(ticket); }), ended);
    EXPECT_EQ(ordoFailure([] { ZNXMLInterface::Terminate(); }),
              "21: ZNXMLInterface::Terminate(): Terminate called more than once per process!\r\n");
}

} // namespace
} // namespace zent::test
