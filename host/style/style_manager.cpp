// SPDX-License-Identifier: Apache-2.0
#include "contract/style_manager.h"

#include "host/style/product_stylesheet.h"

namespace ostra::utils::style_manager {
namespace {

class ProductStyle final : public StyleManager {
public:
    std::string Stylesheet() const override { return std::string(productStylesheet()); }
};

} // namespace

StyleManager *StyleManager::instance()
{
    static ProductStyle style;
    return &style;
}

} // namespace ostra::utils::style_manager
