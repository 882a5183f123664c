#include "tests/interop/Peer.h"

namespace Interop {

std::unique_ptr<Peer> MakeQuor();
std::unique_ptr<Peer> MakeIniReader();
std::unique_ptr<Peer> MakeSimpleIni();
std::unique_ptr<Peer> MakeGKeyFile();
std::unique_ptr<Peer> MakeQSettings();
std::unique_ptr<Peer> MakeBoost();
std::unique_ptr<Peer> MakeConfigParser();

// The build defines QUOR_WITH_... as 1 or 0 for each peer that may be missing.
const std::vector<PeerRow>& Peers() {
    static const std::vector<PeerRow> peers = {
        {"ours", "", true, true, true, true, MakeQuor},
        {"inih", "libinih-dev", false, false, false, false, QUOR_WITH_INIREADER ? MakeIniReader : nullptr},
        {"SimpleIni", "libsimpleini-dev", false, true, false, true,
         QUOR_WITH_SIMPLEINI ? MakeSimpleIni : nullptr},
        {"GKeyFile", "libglib2.0-dev", false, true, true, true, QUOR_WITH_GKEYFILE ? MakeGKeyFile : nullptr},
        {"QSettings", "qt6-base-dev", false, true, true, false,
         QUOR_WITH_QSETTINGS ? MakeQSettings : nullptr},
        {"Boost", "libboost-dev", false, true, true, true, QUOR_WITH_BOOST ? MakeBoost : nullptr},
        {"configparser", "python3", false, true, true, true,
         QUOR_WITH_CONFIGPARSER ? MakeConfigParser : nullptr},
    };
    return peers;
}

} // namespace Interop
