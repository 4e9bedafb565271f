// The preference file holds anything at all: it is read, written over, and read again.

#include "platform/freedesktop/IniUserDefaults.h"
#include "tests/fuzz/FuzzFile.h"

#include <QCoreApplication>

#include <array>

using namespace tambrelle;

namespace {

const std::array<QString, 4> keys{QStringLiteral("menuBarFormat"), QStringLiteral("soundEnabled"),
                                  QStringLiteral("notificationHour"), QStringLiteral("of no one")};

void readAll(const UserDefaults& defaults) {
    for (const QString& key : keys) {
        static_cast<void>(defaults.string(key));
        static_cast<void>(defaults.boolean(key));
        static_cast<void>(defaults.integer(key));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Each input has a file of its own: the toolkit may answer for a file that it knows from what it has read
    // before.
    static fuzz::FuzzFile file("tambrelle.conf");
    file.write({data, size});
    {
        IniUserDefaults defaults(file.path());
        readAll(defaults);
        defaults.setInteger(keys[2], 7);
        defaults.setString(keys[0], QStringLiteral("date"));
        fuzz::mustHold(defaults.integer(keys[2]) == 7);
        fuzz::mustHold(defaults.string(keys[0]) == QStringLiteral("date"));
        readAll(defaults);
    }
    const IniUserDefaults again(file.path());
    fuzz::mustHold(again.integer(keys[2]) == 7);
    fuzz::mustHold(again.string(keys[0]) == QStringLiteral("date"));
    return 0;
}
