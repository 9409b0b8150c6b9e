#include "testtable.h"
#include "velmolib.h"

#include <palx/appversionmanager.h>
#include <palx/rs232settings.h>

class tst_Platform : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void libraryIsRegisteredOnLoad()
    {
        using Manager = palx::AppVersionManager;
        QCOMPARE(Manager::localisations(), QStringList("velmolib"_s));
        QCOMPARE(VelmoLib::version().version(), "5.0.6"_s);
        const QString built = VelmoLib::version().buildTime();
        QCOMPARE(QDateTime::fromString(built, Qt::ISODate).toString(Qt::ISODate), built);
        QCOMPARE(Manager::version("velmolib"_s).buildTime(), built);
        QVERIFY(!built.isEmpty() && !Manager::version("other"_s).isValid());

        // A second instance must not register the version again.
        Manager::addVersion("velmolib"_s, palx::AppVersion("9"_s, QString()));
        const VelmoLib second;
        QCOMPARE(Manager::version("velmolib"_s).version(), "9"_s);
        QCOMPARE(VelmoLib::version().version(), "5.0.6"_s);
        QCOMPARE(Manager::localisations(), QStringList({"velmolib"_s, "velmolib"_s}));
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

        palx::RS232Settings other("other"_s);
        other.setList(written.toList());
        QCOMPARE(other.baudrate(), QSerialPort::Baud9600);
        other.setPortSettings(read.portSettings());
        QCOMPARE(other.stopBits(), QSerialPort::OneAndHalfStop);
    }
};

QTEST_APPLESS_MAIN(tst_Platform)
#include "tst_platform.moc"
