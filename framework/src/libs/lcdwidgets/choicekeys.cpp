#include "choicekeys_p.h"

// The children of the grouped controls keep their values as object user data (ids 256
// and 257), which hosts read back through the same ids.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

namespace LCD {
namespace Widget {

namespace {

class ChoiceUserData : public QObjectUserData
{
public:
    explicit ChoiceUserData(QVariant v) : value(std::move(v)) {}
    QVariant value;
};

bool validId(int id) { return id >= 0 && id <= kMaxChoiceDataId; }

} // namespace

void setChoiceData(QObject* object, int id, QVariant const& value)
{
    if (!object || !validId(id))
        return;
    auto const uid = static_cast<uint>(id);
    if (auto* data = dynamic_cast<ChoiceUserData*>(object->userData(uid))) {
        data->value = value;
        return;
    }
    object->setUserData(uid, new ChoiceUserData(value)); // owned by the object
}

QVariant choiceData(QObject const* object, int id)
{
    if (!object || !validId(id))
        return QVariant();
    auto const* data = dynamic_cast<ChoiceUserData const*>(object->userData(static_cast<uint>(id)));
    return data ? data->value : QVariant();
}

} // namespace Widget
} // namespace LCD

QT_WARNING_POP
