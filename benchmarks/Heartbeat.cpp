// heartbeat.xml read and written by the library, beside what pugixml and Qt alone take for the same file.
#include "FieldbusSettingLib.h"

#include <QDateTime>
#include <QSaveFile>

#include <benchmark/benchmark.h>
#include <pugixml.hpp>

namespace {

const QString Path = QStringLiteral("../Application/fieldbusSetting/heartbeat.xml");

FieldbusSettingLib* filledLibrary()
{
    FieldbusSettingLib* lib = FieldbusSettingLib::getInstance();
    lib->heartbeat.Mtcp_Nod_Switch = true;
    lib->heartbeat.Eip_Timeout = 2.5;
    lib->heartbeat.Dnm_Timeout = 12.125;
    lib->writeHeartbeatDetectionFile(Path);
    return lib;
}

void readHeartbeat(benchmark::State& state)
{
    FieldbusSettingLib* lib = filledLibrary();
    for (auto _ : state)
        benchmark::DoNotOptimize(lib->readHeartbeatDetectionFile(Path));
}

void readPlainPugixml(benchmark::State& state)
{
    filledLibrary();
    const QByteArray path = Path.toLocal8Bit();
    for (auto _ : state) {
        pugi::xml_document document;
        document.load_file(path.constData(), pugi::parse_pi);
        for (const pugi::xml_node bus : document.child("Fidbus").children()) {
            benchmark::DoNotOptimize(bus.first_child().text().as_bool());
            benchmark::DoNotOptimize(bus.last_child().text().as_double());
        }
    }
}

void writeHeartbeat(benchmark::State& state)
{
    FieldbusSettingLib* lib = filledLibrary();
    for (auto _ : state)
        benchmark::DoNotOptimize(lib->writeHeartbeatDetectionFile(Path));
}

class DeviceWriter : public pugi::xml_writer
{
public:
    explicit DeviceWriter(QIODevice& device)
        : m_device(device)
    {
    }
    void write(const void* data, std::size_t size) override
    {
        m_device.write(static_cast<const char*>(data), static_cast<qint64>(size));
    }

private:
    QIODevice& m_device;
};

// Builds the same document and lets pugixml's writer fill a QSaveFile.
void writePlainPugixml(benchmark::State& state)
{
    filledLibrary();
    pugi::xml_document present;
    present.load_file(Path.toLocal8Bit().constData(), pugi::parse_full);
    for (auto _ : state) {
        pugi::xml_document document;
        pugi::xml_node declaration = document.append_child(pugi::node_declaration);
        declaration.append_attribute("version") = "1.0";
        declaration.append_attribute("encoding") = "utf-8";
        const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyy/MM/dd hh:mm:ss"));
        document.append_child(pugi::node_comment).set_value(time.toLatin1().constData());
        pugi::xml_node root = document.append_child("Fidbus");
        for (const pugi::xml_node bus : present.child("Fidbus").children()) {
            pugi::xml_node copy = root.append_child(bus.name());
            for (const pugi::xml_node value : bus.children())
                copy.append_child(value.name()).text() =
                    QString::number(value.text().as_double(), 'f', 3).toLatin1().constData();
        }
        QSaveFile file(Path);
        file.open(QIODevice::WriteOnly);
        DeviceWriter writer(file);
        document.save(writer, "\t", pugi::format_indent, pugi::encoding_utf8);
        file.flush();
        file.commit();
    }
}

} // namespace

BENCHMARK(readHeartbeat);
BENCHMARK(readPlainPugixml);
BENCHMARK(writeHeartbeat);
BENCHMARK(writePlainPugixml);
