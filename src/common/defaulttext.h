#pragma once

#include <QString>

namespace vellum {

/// A translated text that a control gives a part of itself, and that a client may replace. It
/// follows the language only while it is the control's own.
class DefaultText
{
public:
    /// \a part is anything with text() and setText().
    template <typename Part>
    void renew(Part *part, const QString &translated)
    {
        if (m_given.isNull() || part->text() == m_given)
            part->setText(translated);
        m_given = translated;
    }

private:
    QString m_given;
};

} // namespace vellum
