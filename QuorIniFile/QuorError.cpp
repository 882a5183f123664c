#include "QuorIniFile/QuorError.h"

#include "QuorIniFile/detail/Unicode.h"

#include <utility>

namespace QuorIniFile {

QuorError::QuorError(std::int32_t number, std::wstring source, std::wstring description,
                     std::wstring helpFile, std::int32_t helpContext)
    : m_number(number),
      m_source(std::move(source)),
      m_description(std::move(description)),
      m_helpFile(std::move(helpFile)),
      m_helpContext(helpContext),
      m_what(ToUtf8(m_description)) {}

QuorError::QuorError(std::int32_t number, std::wstring source, std::wstring description, IniCause cause)
    : m_number(number),
      m_source(std::move(source)),
      m_description(std::move(description)),
      m_helpContext(0),
      m_cause(std::move(cause)),
      m_what(ToUtf8(m_description)) {}

} // namespace QuorIniFile
