// GLib's GKeyFile.

#include "tests/interop/Peer.h"

#include <glib.h>

#include <stdexcept>

namespace Interop {
namespace {

class KeyFile final : public Peer {
public:
    ~KeyFile() override { g_key_file_free(m_file); }

    void Open(const std::string& path) override {
        Create(path);
        GError* error = nullptr;
        g_key_file_load_from_file(m_file, path.c_str(), G_KEY_FILE_KEEP_COMMENTS, &error);
        Require(error);
    }
    void Create(const std::string& path) override { m_path = path; }
    std::string Text(const std::string& section, const std::string& key) override {
        GError* error = nullptr;
        char* const value = g_key_file_get_string(m_file, section.c_str(), key.c_str(), &error);
        Require(error);
        std::string text = value;
        g_free(value);
        return text;
    }
    double Double(const std::string& section, const std::string& key) override {
        GError* error = nullptr;
        const double value = g_key_file_get_double(m_file, section.c_str(), key.c_str(), &error);
        Require(error);
        return value;
    }
    long Integer(const std::string& section, const std::string& key) override {
        GError* error = nullptr;
        const int value = g_key_file_get_integer(m_file, section.c_str(), key.c_str(), &error);
        Require(error);
        return value;
    }
    void SetText(const std::string& section, const std::string& key, const std::string& value) override {
        g_key_file_set_string(m_file, section.c_str(), key.c_str(), value.c_str());
    }
    void SetDouble(const std::string& section, const std::string& key, double value) override {
        g_key_file_set_double(m_file, section.c_str(), key.c_str(), value);
    }
    void SetInteger(const std::string& section, const std::string& key, long value) override {
        g_key_file_set_integer(m_file, section.c_str(), key.c_str(), static_cast<int>(value));
    }
    void Save() override {
        GError* error = nullptr;
        g_key_file_save_to_file(m_file, m_path.c_str(), &error);
        Require(error);
    }

private:
    static void Require(GError* error) {
        if (!error)
            return;
        const std::string message = error->message;
        g_error_free(error);
        throw std::runtime_error(message);
    }

    GKeyFile* m_file = g_key_file_new();
    std::string m_path;
};

} // namespace

std::unique_ptr<Peer> MakeGKeyFile() { return std::make_unique<KeyFile>(); }

} // namespace Interop
