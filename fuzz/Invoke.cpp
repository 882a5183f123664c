// Random members of random objects, called by name with random arguments in random order, also inside the
// functions of the host: no crash, no exception, an error that is told, and nothing left when everything is
// given back.

#include "component/quor.h"
#include "fuzz/Claim.h"
#include "tests/support/TempFolder.h"

#include <array>
#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace {

using Fuzz::Claim;

/// The input, eaten from its beginning. Behind its end there are zeros.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size) {}

    [[nodiscard]] bool IsEaten() const { return m_at >= m_size; }
    [[nodiscard]] std::uint8_t Byte() { return IsEaten() ? std::uint8_t{0} : m_data[m_at++]; }
    template <class Number>
    [[nodiscard]] Number Next() {
        Number number{};
        const std::size_t left = m_size - m_at;
        const std::size_t taken = left < sizeof number ? left : sizeof number;
        if (taken > 0)
            std::memcpy(&number, m_data + m_at, taken);
        m_at += taken;
        return number;
    }
    /// Bytes that are the path of no file outside the current folder.
    [[nodiscard]] std::string Name() {
        std::string name(Byte() % 16, '\0');
        for (char& c : name)
            if (c = static_cast<char>(Byte()); c == '/')
                c = '_';
        return name == ".." ? "_" : name;
    }

private:
    const std::uint8_t* m_data;
    std::size_t m_size;
    std::size_t m_at = 0;
};

constexpr std::array classes{"CQuorConversion", "CQuorPT100", "CQuorTCTypePoly",
                             "INIFile",         "Registry",   "CQuorCVD",
                             "Platform",        "",           "ProbeFile"};
constexpr std::array texts{"Probe", "Probe - Settings", "Coefficients0", "R0", "K", "x.ini", "1.5", "\xFF"};

class Host {
public:
    Host(const std::uint8_t* data, std::size_t size) : m_input(data, size) {
        OfferAll();
        for (const char* const name : {classes[0], classes[1], classes[2]})
            Make(name);
    }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    ~Host() {
        for (const quor_object object : m_objects)
            Claim(quor_release(object) == 0, "a handle that was given out can be given back");
        std::int32_t count = -1;
        Claim(quor_handle_count(&count) == 0 && count == 0, "nothing is left when all is given back");
        Claim(m_destroyed == m_offered, "the library lets go of what it was offered");
    }

    void Play() {
        while (!m_input.IsEaten())
            Step();
    }

private:
    static Host& Of(void* user) { return *static_cast<Host*>(user); }

    /// What a function of the host does before it returns.
    std::int32_t InHost() {
        if (m_depth < 3) {
            ++m_depth;
            for (int steps = m_input.Byte() % 4; steps > 0; --steps)
                Step();
            --m_depth;
        }
        const std::uint8_t code = m_input.Byte();
        if (code < 224) // mostly it goes well
            return 0;
        if (code % 2 == 0)
            quor_set_error(code, quor_text_of("Host"), quor_text_of("words"), quor_text_of(""), code);
        return code;
    }
    void Answer() {
        if (m_input.Byte() % 4 == 0)
            return;
        const std::string name = m_input.Name();
        static_cast<void>(quor_answer({name.data(), name.size()}));
    }

    template <class Functions, class Make>
    void Offer(Functions functions, Make make) {
        functions.size = sizeof functions;
        functions.destroyed = [](void* user) { ++Of(user).m_destroyed; };
        quor_object made = 0;
        Claim(make(&functions, this, &made) == 0, "what is offered is taken");
        ++m_offered;
        m_objects.push_back(made);
    }

    void OfferAll() {
        quor_platform_functions platform{};
        platform.run_dialog = [](void* user, quor_object dialog) {
            Host& host = Of(user);
            Claim(quor_add_ref(dialog) == 0, "the dialog that runs has a handle");
            host.m_objects.push_back(dialog);
            std::int32_t count = 0;
            Claim(quor_dialog_get_ControlCount(dialog, &count) == 0, "the dialog that runs can be read");
            for (std::int32_t i = host.m_input.Byte() % 4; i < count; i += 4) {
                quor_object control = 0;
                Claim(quor_dialog_get_Controls(dialog, i, &control) == 0, "a dialog has its controls");
                host.m_objects.push_back(control);
            }
            static_cast<void>(quor_dialog_Activate(dialog));
            return host.InHost();
        };
        platform.show_message = [](void* user, const quor_message*) { return Of(user).InHost(); };
        platform.ask_for_file = [](void* user, const quor_file_request*) {
            Of(user).Answer();
            return Of(user).InHost();
        };
        platform.call_help = [](void* user, quor_text, std::uint32_t, std::int32_t, std::int32_t*) {
            return Of(user).InHost();
        };
        platform.control_changed = [](void*, quor_object, quor_object control) {
            Claim(quor_control_get_Kind(control, nullptr) == 0, "a control that changes can be read");
        };
        Offer(platform, quor_platform_from_host);
        m_platform = m_objects.back();

        quor_inifile_functions file{};
        file.put_file_name = [](void* user, quor_text) { return Of(user).InHost(); };
        file.get_file_name = [](void* user) { return Of(user).Answer(), 0; };
        file.put_section = [](void* user, quor_text) { return Of(user).InHost(); };
        file.get_section = [](void* user) { return Of(user).Answer(), 0; };
        file.read_boolean = [](void* user, quor_text, std::int16_t* value, std::int16_t* found) {
            *value = Of(user).m_input.Next<std::int16_t>();
            return *found = Of(user).m_input.Byte(), Of(user).InHost();
        };
        file.read_double = [](void* user, quor_text, double* value, std::int16_t* found) {
            *value = Of(user).m_input.Next<double>();
            return *found = Of(user).m_input.Byte(), Of(user).InHost();
        };
        file.read_integer = file.read_boolean;
        file.read_string = [](void* user, quor_text, std::int16_t* found) {
            Of(user).Answer();
            return *found = Of(user).m_input.Byte(), Of(user).InHost();
        };
        file.write_boolean = [](void* user, quor_text, std::int16_t) { return Of(user).InHost(); };
        file.write_double = [](void* user, quor_text, double, quor_text) { return Of(user).InHost(); };
        file.write_integer = [](void* user, quor_text, std::int16_t, quor_text) { return Of(user).InHost(); };
        file.write_string = [](void* user, quor_text, quor_text) { return Of(user).InHost(); };
        Offer(file, quor_inifile_from_host);

        quor_registry_functions registry{};
        registry.read_value = [](void* user, quor_text, quor_text, std::int16_t* found) {
            Of(user).Answer();
            return *found = Of(user).m_input.Byte(), Of(user).InHost();
        };
        registry.write_value = [](void* user, quor_text, quor_text, quor_text) { return Of(user).InHost(); };
        Offer(registry, quor_registry_from_host);

        quor_list_control_functions list{};
        list.clear = [](void* user) { return Of(user).InHost(); };
        list.add_item = [](void* user, quor_text) { return Of(user).InHost(); };
        list.get_new_index = [](void* user, std::int32_t* index) {
            return *index = Of(user).m_input.Byte(), Of(user).InHost();
        };
        list.put_item_data = [](void* user, std::int32_t, std::int32_t) { return Of(user).InHost(); };
        Offer(list, quor_list_control_from_host);
    }

    [[nodiscard]] quor_object AnyObject() {
        const std::uint8_t which = m_input.Byte();
        if (which >= 250)
            return m_input.Next<quor_object>();
        return m_objects.empty() || which == 249 ? 0 : m_objects[which % m_objects.size()];
    }

    void Make(const char* name) {
        std::array<quor_value, 2> args{};
        std::string application = m_input.Name();
        if (std::strcmp(name, "Registry") == 0) {
            args[0].kind = args[1].kind = QUOR_TEXT;
            args[0].as.text = {application.data(), application.size()};
            args[1].as.text = quor_text_of("folder");
        } else if (std::strcmp(name, "ProbeFile") == 0) {
            args[0].kind = QUOR_TEXT;
            args[0].as.text = quor_text_of("x.ini");
            args[1].kind = QUOR_BOOL;
            args[1].as.boolean = m_input.Byte() % 4 == 0 ? std::int16_t{0} : std::int16_t{-1};
        } else {
            args[0].kind = QUOR_OBJECT;
            args[0].as.object = m_platform;
        }
        const std::int32_t n = std::strcmp(name, "INIFile") == 0 ? 0
                               : std::strcmp(name, "Registry") == 0 || std::strcmp(name, "ProbeFile") == 0
                                   ? 2
                                   : 1;
        quor_object made = 0;
        if (Check(quor_create(quor_text_of(name), args.data(), n, &made)))
            m_objects.push_back(made);
    }

    /// Whether the call went well; when it did not, the error is told.
    static bool Check(std::int32_t code) {
        if (code == 0)
            return true;
        quor_error error{};
        Claim(quor_last_error(&error) == 0 && error.number == code, "an error that is returned is told");
        Claim(error.number == QUOR_ERROR_OUT_OF_MEMORY || error.source.size > 0, "an error has a source");
        return false;
    }

    [[nodiscard]] quor_value AnyValue() {
        quor_value value{};
        value.kind = m_input.Byte() % 8; // one more than there are
        switch (value.kind) {
        case QUOR_BOOL:
        case QUOR_INT16:
            value.as.int16 = static_cast<std::int16_t>(m_input.Next<std::int16_t>() % 64);
            break;
        case QUOR_INT32:
            value.as.int32 = static_cast<std::int8_t>(m_input.Byte());
            if (value.as.int32 == 127)
                value.as.int32 = m_input.Next<std::int32_t>();
            break;
        case QUOR_DOUBLE:
            value.as.number = m_input.Next<double>();
            break;
        case QUOR_TEXT:
            if (const std::uint8_t which = m_input.Byte(); which < 128) {
                value.as.text = quor_text_of(texts[which % texts.size()]);
            } else {
                m_names.push_back(m_input.Name());
                value.as.text = {m_names.back().data(), m_names.back().size()};
            }
            break;
        case QUOR_OBJECT:
            value.as.object = AnyObject();
            break;
        default:
            break;
        }
        return value;
    }

    void Step() {
        switch (const std::uint8_t what = m_input.Byte(); what % 16) {
        case 0:
            if (m_objects.size() < 64)
                Make(classes[m_input.Byte() % classes.size()]);
            return;
        case 1: {
            if (const quor_object object = AnyObject(); m_objects.size() < 64 && Check(quor_add_ref(object)))
                m_objects.push_back(object);
            return;
        }
        case 2:
            if (const std::uint8_t which = m_input.Byte(); !m_objects.empty()) {
                const auto at = m_objects.begin() + static_cast<std::ptrdiff_t>(which % m_objects.size());
                const quor_object object = *at;
                m_objects.erase(at);
                Claim(quor_release(object) == 0, "a handle that was given out can be given back");
            }
            return;
        default:
            Invoke();
        }
    }

    void Invoke() {
        const quor_object object = AnyObject();
        const char* name = nullptr;
        if (!Check(quor_class_of(object, &name)))
            return;
        static std::map<std::string, std::vector<quor_member>> known;
        std::vector<quor_member>& members = known[name];
        if (members.empty()) {
            std::int32_t count = 0;
            Claim(quor_members(quor_text_of(name), nullptr, 0, &count) == 0, "a class has members");
            members.resize(static_cast<std::size_t>(count));
            Claim(quor_members(quor_text_of(name), members.data(), count, nullptr) == 0, "which are told");
        }
        std::int32_t id = m_input.Byte();
        std::int32_t kind = 1 << (m_input.Byte() % 3);
        if (id < 240 && !members.empty()) {
            const quor_member& member = members[static_cast<std::size_t>(id) % members.size()];
            Claim(quor_id_of_name(object, quor_text_of(member.name), &id) == 0 && id == member.id,
                  "a member is found by its name");
            if ((member.kinds & kind) == 0)
                kind = member.kinds & -member.kinds;
        }
        std::vector<quor_value> args(m_input.Byte() % 5);
        m_names.clear();
        m_names.reserve(args.size()); // the values look into it
        for (quor_value& value : args)
            value = AnyValue();
        std::vector<std::string> names;
        names.swap(m_names); // calls inside this one have their own
        quor_value result{};
        if (Check(quor_invoke(object, id, kind, args.data(), static_cast<std::int32_t>(args.size()),
                              &result))) {
            Claim(result.kind >= QUOR_EMPTY && result.kind <= QUOR_DOUBLES,
                  "a result is of a kind that there is");
            if (result.kind == QUOR_OBJECT && result.as.object != 0 && m_objects.size() < 64) {
                m_objects.push_back(result.as.object);
                result.owned = 0;
            }
        }
        quor_value_clear(&result);
        for (quor_value& value : args)
            quor_value_clear(&value);
    }

    Input m_input;
    quor_object m_platform = 0;
    std::vector<quor_object> m_objects;
    std::vector<std::string> m_names;
    int m_depth = 0;
    int m_offered = 0;
    int m_destroyed = 0;
};

/// The files of the built-in stores stand in a folder of their own while an input is played.
class InFolder {
public:
    explicit InFolder(const std::filesystem::path& folder) : m_before(std::filesystem::current_path()) {
        std::filesystem::current_path(folder);
    }
    InFolder(const InFolder&) = delete;
    InFolder& operator=(const InFolder&) = delete;
    ~InFolder() {
        for (const auto& left : std::filesystem::directory_iterator("."))
            std::filesystem::remove_all(left);
        std::filesystem::current_path(m_before);
    }

private:
    std::filesystem::path m_before;
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TempFolder folder;
    const InFolder here(folder.Path());
    Host(data, size).Play();
    return 0;
}
