// Testprogramm gegen den echten Spieler: läuft auf einem eigenen Sitzungsbus (dbus-run-session),
// damit kein Spieler der Person berührt wird.
#include <QCoreApplication>

#include <gtest/gtest.h>

#include <cstdlib>
#include <unistd.h>
#include <vector>

int main(int argc, char** argv) {
    if (!std::getenv("KK_PRIVATER_BUS")) {
        setenv("KK_PRIVATER_BUS", "1", 1);
        std::vector<char*> argumente = {const_cast<char*>("dbus-run-session"), const_cast<char*>("--")};
        for (int i = 0; i < argc; ++i) argumente.push_back(argv[i]);
        argumente.push_back(nullptr);
        execvp("dbus-run-session", argumente.data());
        // Ohne dbus-run-session nie den Bus der Person: die Tests überspringen sich dann.
        unsetenv("DBUS_SESSION_BUS_ADDRESS");
    }
    QCoreApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
