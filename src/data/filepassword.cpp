#include "data/filepassword.h"

#include <QStringEncoder>

#include <vector>

namespace {

// Through a volatile pointer: what nobody reads any more the compiler would not write.
void overwrite(void *memory, size_t size)
{
    auto *bytes = static_cast<volatile char *>(memory);
    for (size_t i = 0; i < size; ++i)
        bytes[i] = 0;
}

} // namespace

class FilePassword::Secret
{
public:
    explicit Secret(const QString &composed)
    {
        QStringEncoder encoder(QStringEncoder::Utf8);
        m_bytes.resize(size_t(encoder.requiredSpace(composed.size())));
        const char *const end = encoder.appendToBuffer(m_bytes.data(), composed);
        m_size = size_t(end - m_bytes.data());
    }
    ~Secret() { overwrite(m_bytes.data(), m_bytes.size()); }
    Secret(const Secret &) = delete;
    Secret &operator=(const Secret &) = delete;

    std::string_view bytes() const { return {m_bytes.data(), m_size}; }

private:
    std::vector<char> m_bytes;
    size_t m_size = 0;
};

FilePassword::FilePassword(const QString &typed)
{
    if (typed.isEmpty())
        return;
    QString composed = typed.normalized(QString::NormalizationForm_C);
    m_secret = std::make_shared<const Secret>(composed);
    if (composed.isDetached()) // else it is the text that was handed in
        overwrite(composed.data(), size_t(composed.size()) * sizeof(QChar));
}

bool FilePassword::isTakenForKey() const
{
    const std::string_view start = bytes().substr(0, 2);
    return bytes().starts_with("raw:") || start == "x'" || start == "X'";
}

std::string_view FilePassword::bytes() const
{
    return m_secret ? m_secret->bytes() : std::string_view();
}
