#include "sync/SyncAddressFields.h"

#include <QIntValidator>
#include <QLineEdit>
#include <QStringList>

namespace {

// QIntValidator lets a value above the top through as intermediate while it has no more digits
// than the top ("300" for 255); an octet must stop at the keystroke that passes 255.
class OctetValidator : public QIntValidator
{
public:
    explicit OctetValidator(QObject* parent)
        : QIntValidator(0, 255, parent)
    {
    }

    State validate(QString& input, int& position) const override
    {
        const State state = QIntValidator::validate(input, position);
        bool ok = false;
        const int value = input.toInt(&ok);
        return state == Intermediate && ok && value > top() ? Invalid : state;
    }
};

} // namespace

void SyncAddressFields::setUp(const Fields& fields)
{
    for (QLineEdit* field : fields) {
        field->setStyleSheet(
            QStringLiteral("QLineEdit { background-color: white; text-align:center;}"));
        field->setValidator(new OctetValidator(field));
        field->setAlignment(Qt::AlignCenter);
    }
}

QString SyncAddressFields::join(const Fields& fields)
{
    QStringList parts;
    for (const QLineEdit* field : fields)
        parts.append(field->text());
    return parts.join(QLatin1Char('.'));
}

void SyncAddressFields::fill(const Fields& fields, const QString& address)
{
    const QStringList parts = address.split(QLatin1Char('.'));
    for (int i = 0; i < int(fields.size()) && i < parts.size(); ++i)
        fields[size_t(i)]->setText(parts.at(i));
}
