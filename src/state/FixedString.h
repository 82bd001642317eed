// A fixed-length text field of the settings record: exactly N bytes, CP932
// when the text fits, otherwise UTF-8, cut at a character boundary. A new
// field holds N NUL bytes; an assigned text is padded with blanks, as a
// fixed-length string of the classic language is.
#pragma once

#include "platform/TextCodec.h"

#include <QByteArray>
#include <QString>

namespace lumen {

template <int N> class FixedString {
public:
    static constexpr int size = N;

    FixedString()
        : bytes_(N, '\0')
    {}
    FixedString(const QString& text) { *this = text; } // NOLINT: assignment from text is the point

    FixedString& operator=(const QString& text)
    {
        bytes_ = text::encodeField(text, N);
        bytes_.append(QByteArray(N - bytes_.size(), ' '));
        return *this;
    }

    // The whole field as text, padding included.
    QString text() const { return text::decode(bytes_); }
    operator QString() const { return text(); } // NOLINT: read as a text wherever one is wanted

    const QByteArray& bytes() const { return bytes_; }
    void setBytes(const QByteArray& bytes)
    {
        bytes_ = bytes.left(N);
        bytes_.append(QByteArray(N - bytes_.size(), '\0'));
    }

    bool operator==(const FixedString& other) const { return bytes_ == other.bytes_; }

private:
    QByteArray bytes_;
};

} // namespace lumen
