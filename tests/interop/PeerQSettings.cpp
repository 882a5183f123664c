// Qt's QSettings in its INI format.

#include "tests/interop/Peer.h"

#include <QSettings>
#include <QString>

#include <optional>
#include <stdexcept>

namespace Interop {
namespace {

class Settings final : public Peer {
public:
    void Open(const std::string& path) override {
        Create(path);
        Require();
    }
    void Create(const std::string& path) override {
        m_settings.emplace(QString::fromStdString(path), QSettings::IniFormat);
    }
    std::string Text(const std::string& section, const std::string& key) override {
        return Value(section, key).toString().toStdString();
    }
    double Double(const std::string& section, const std::string& key) override {
        return Value(section, key).toDouble();
    }
    long Integer(const std::string& section, const std::string& key) override {
        return Value(section, key).toInt();
    }
    void SetText(const std::string& section, const std::string& key, const std::string& value) override {
        m_settings->setValue(Path(section, key), QString::fromStdString(value));
    }
    void SetDouble(const std::string& section, const std::string& key, double value) override {
        m_settings->setValue(Path(section, key), value);
    }
    void SetInteger(const std::string& section, const std::string& key, long value) override {
        m_settings->setValue(Path(section, key), static_cast<int>(value));
    }
    void Save() override {
        m_settings->sync();
        Require();
    }

private:
    static QString Path(const std::string& section, const std::string& key) {
        return QString::fromStdString(section + '/' + key);
    }
    [[nodiscard]] QVariant Value(const std::string& section, const std::string& key) const {
        return m_settings->value(Path(section, key), "missing");
    }
    void Require() const {
        if (m_settings->status() != QSettings::NoError)
            throw std::runtime_error("status " + std::to_string(m_settings->status()));
    }

    std::optional<QSettings> m_settings;
};

} // namespace

std::unique_ptr<Peer> MakeQSettings() { return std::make_unique<Settings>(); }

} // namespace Interop
