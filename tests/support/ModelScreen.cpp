#include "tests/support/TestedScreen.h"

std::shared_ptr<QuorConversions::Scripted::Screen> Support::TestedScreen() {
    return std::make_shared<QuorConversions::Scripted::Screen>();
}
