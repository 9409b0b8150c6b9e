// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorsettings.h"
#include "acceptorstate.h"
#include "devicestate.h"
#include "testtable.h"
#include "velmolib.h"

#include <palx/appversionmanager.h>
#include <palx/rs232settings.h>

#include <thread>

class tst_Platform : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void libraryIsRegisteredOnLoad()
    {
        using Manager = palx::AppVersionManager;
        QCOMPARE(Manager::localisations(), QStringList("velmolib"_s));
        QCOMPARE(VelmoLib::version().version(), QStringLiteral(VERSION));
        const QString built = VelmoLib::version().buildTime();
        QCOMPARE(QDateTime::fromString(built, Qt::ISODate).toString(Qt::ISODate), built);
        QCOMPARE(Manager::version("velmolib"_s).buildTime(), built);
        QVERIFY(!built.isEmpty() && !Manager::version("other"_s).isValid());

        // A second instance must not register the version again.
        Manager::addVersion("velmolib"_s, palx::AppVersion("9"_s, QString()));
        const VelmoLib second;
        QCOMPARE(Manager::version("velmolib"_s).version(), "9"_s);
        QCOMPARE(VelmoLib::version().version(), QStringLiteral(VERSION));
        QCOMPARE(Manager::localisations(), QStringList({"velmolib"_s, "velmolib"_s}));
    }

    // First use from several threads at once; the thread sanitizer's builds look at it closely.
    void sharedPartsStandThreads()
    {
        DeviceState shared;
        shared.idString = "shared"_s;
        shared.dispenserRegistry.append({1, 7, 2, Acceptors::Bill, "RUB"_s, 100, 5, 0});
        const auto use = [&shared](bool* good) {
            const AcceptorSettings settings;
            for (int round = 0; round < 100; ++round) {
                DeviceState copy = shared;
                copy.stateText = VelmoLib::version().version();
                const QVariantList devices{copy.toMap()};
                AcceptorState state;
                AcceptorState::loadFromStateMap({{"device_states"_s, devices}}, state);
                DeviceState read;
                *good = read.parse(copy.serialize()) && read.idString == shared.idString
                    && settings.fixedDeviceTypes().contains(Acceptors::Uniteller)
                    && Acceptors::devName(Acceptors::CCNet) == "CCNet"_s
                    && state.deviceStates().constFirst().dispRegistry().size() == 1;
            }
        };
        bool good[3] = {};
        std::thread threads[] = {std::thread(use, good), std::thread(use, good + 1),
                                 std::thread(use, good + 2)};
        for (std::thread& thread : threads)
            thread.join();
        QVERIFY(good[0] && good[1] && good[2]);
    }

    void portSettingsReadBackFromTheirList()
    {
        palx::RS232Settings written("port"_s);
        written.setPortName("ttyS1"_s);
        written.setBaudrate(static_cast<QSerialPort::BaudRate>(14400));
        written.setDataBitsType(QSerialPort::Data7);
        written.setParityType(QSerialPort::MarkParity);
        written.setStopBits(QSerialPort::OneAndHalfStop);
        written.setFlowControl(QSerialPort::SoftwareControl);
        palx::RS232Settings read("port"_s);
        read.setList(written.toList());
        QCOMPARE(read.toList(), written.toList());
        QCOMPARE(read.portName(), "ttyS1"_s);
        QCOMPARE(read.portSettings().parity(), QSerialPort::MarkParity);
    }
};

QTEST_APPLESS_MAIN(tst_Platform)
#include "tst_platform.moc"
