#include "selvik/trans/translate.h"

#include <QTranslator>
#include <vector>

namespace selvik {
namespace trans {

struct Translator::Impl
{
    std::vector<std::unique_ptr<QTranslator>> catalogues;
};

Translator::Translator() : d(std::make_unique<Impl>()) {}
Translator::~Translator() = default;

bool Translator::load(QString const& qmFile)
{
    auto t = std::make_unique<QTranslator>();
    if (!t->load(qmFile))
        return false;
    d->catalogues.push_back(std::move(t));
    return true;
}

void Translator::clear() { d->catalogues.clear(); }

bool Translator::isEmpty() const { return d->catalogues.empty(); }

QTranslator* Translator::current() const { return d->catalogues.empty() ? nullptr : d->catalogues.back().get(); }

QString Translator::lookup(QString const& context, QString const& source, QString const& disambiguation) const
{
    QByteArray const ctx = context.toUtf8();
    QByteArray const src = source.toUtf8();
    QByteArray const dis = disambiguation.toUtf8();
    for (auto it = d->catalogues.rbegin(); it != d->catalogues.rend(); ++it) {
        QString t;
        if (!dis.isEmpty())
            t = (*it)->translate(ctx.constData(), src.constData(), dis.constData());
        if (t.isEmpty())
            t = (*it)->translate(ctx.constData(), src.constData());
        if (!t.isEmpty())
            return t;
    }
    return QString();
}

QString translate(Translator const& translator, QString const& context, QString const& group, QString const& source)
{
    if (source.isEmpty() || translator.isEmpty())
        return source;
    QString const t = translator.lookup(context, source, group);
    return t.isEmpty() ? source : t;
}

} // namespace trans
} // namespace selvik
