// Qt's QSettings in its INI format.

#include "bench/ini/Peer.h"

#include <QSettings>
#include <QString>

#include <optional>

namespace Bench {
namespace {

class Settings final : public KeepingPeer<QString> {
public:
    void Prepare(const Workload& workload) override { names.Fill(workload, QString::fromStdString); }
    void Load(const std::string& path) override {
        m_settings.emplace(QString::fromStdString(path), QSettings::IniFormat);
        Require(m_settings->status() == QSettings::NoError, "the file cannot be read");
    }
    void BuildAndSave(const std::string& path, const Workload& workload) override {
        Load(path);
        for (std::size_t probe = 0; probe < workload.Probes(); ++probe) {
            m_settings->beginGroup(names.sections[probe]);
            m_settings->setValue("Version", "1.0");
            m_settings->setValue("ConversionType", 2);
            m_settings->endGroup();
            m_settings->beginGroup(names.settings[probe]);
            m_settings->setValue("Version", "1.0");
            m_settings->setValue("NumCoefficients", 4);
            m_settings->setValue("UsePolynomial", false);
            for (std::size_t i = 0; i < 4; ++i)
                m_settings->setValue(coefficientKeys[i], workload.CoefficientsOf(probe)[i]);
            m_settings->endGroup();
        }
        Save();
    }
    void LoadChangeAndSave(const std::string& path, std::size_t probe, double value) override {
        Load(path);
        m_settings->setValue(names.settings[probe] + '/' + changedKey, value);
        Save();
    }

private:
    void ReadProbe(std::size_t probe, CheckSum& sum) override {
        m_settings->beginGroup(names.sections[probe]);
        sum.AddText(static_cast<std::size_t>(m_settings->value("Version").toString().size()));
        sum.Add(long{m_settings->value("ConversionType").toInt()});
        m_settings->endGroup();
        m_settings->beginGroup(names.settings[probe]);
        sum.AddText(static_cast<std::size_t>(m_settings->value("Version").toString().size()));
        sum.Add(long{m_settings->value("NumCoefficients").toInt()});
        sum.Add(long{m_settings->value("UsePolynomial").toBool()});
        for (const char* const key : coefficientKeys)
            sum.Add(m_settings->value(key).toDouble());
        m_settings->endGroup();
    }
    void Save() {
        m_settings->sync();
        Require(m_settings->status() == QSettings::NoError, "the file cannot be written");
    }

    std::optional<QSettings> m_settings;
};

} // namespace

std::unique_ptr<Peer> MakePeer() { return std::make_unique<Settings>(); }

} // namespace Bench
