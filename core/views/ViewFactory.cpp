#include "views/ViewFactory.h"

#include "platform/TextUtils.h"
#include "views/AuthorisedItemsView.h"
#include "views/CategoryView.h"
#include "views/CodingConventionsView.h"
#include "views/NamingConventionsView.h"
#include "views/SeverityView.h"

std::unique_ptr<IViewController> createView(const QString &toolId)
{
    if (Text::same(toolId, QStringLiteral("tlCodingConventions")))
        return std::make_unique<CodingConventionsView>();
    if (Text::same(toolId, QStringLiteral("tlNamingConventions")))
        return std::make_unique<NamingConventionsView>();
    if (Text::same(toolId, QStringLiteral("tlAuthorisedItems")))
        return std::make_unique<AuthorisedItemsView>();
    if (Text::same(toolId, QStringLiteral("tlCategoryView")))
        return std::make_unique<CategoryView>();
    if (Text::same(toolId, QStringLiteral("tlSeverityView")))
        return std::make_unique<SeverityView>();
    return nullptr;
}
