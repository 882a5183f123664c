#pragma once

#include "QuorConversions/core/CQuorConversion.h"

#include <memory>

namespace QuorProbeFile {

/// Asks whether a file gives back what a conversion holds. One is for many conversions: what it needs is
/// kept.
class ConsistencyCheck {
public:
    ConsistencyCheck();
    ConsistencyCheck(const ConsistencyCheck&) = delete;
    ConsistencyCheck& operator=(const ConsistencyCheck&) = delete;
    ~ConsistencyCheck();

    /// Raises what the conversion raises when it is written.
    [[nodiscard]] bool Holds(const QuorConversions::CQuorConversion& conversion);

private:
    class Tape;
    class Listener;
    [[nodiscard]] bool IsReadBackInOrder(const QuorConversions::SettingsObject& settings);

    std::shared_ptr<Tape> m_tape;
    std::shared_ptr<Listener> m_listener;
    QuorConversions::CQuorConversion m_copy;
};

} // namespace QuorProbeFile
