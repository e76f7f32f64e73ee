// Tests mean the same wherever they run, so none of them reads what the user who runs them has configured.
#include <gtest/gtest.h>

#include <cstdlib>

namespace mekbom
{
namespace
{
class OwnConfiguration : public testing::Environment
{
public:
    void SetUp() override { setenv("XDG_CONFIG_HOME", MEK_TEST_DIR "/no-such-folder", 1); }
};

const testing::Environment* const pOwnConfiguration = testing::AddGlobalTestEnvironment(new OwnConfiguration);
}
}
