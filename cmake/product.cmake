# What the program is called, who makes it and where to reach them: the one place.
# The build, the windows and every package take these values from here.
set(PRODUCT_NAME "Tarnwick")
set(PRODUCT_MAKER "Quenby")
set(PRODUCT_TITLE "${PRODUCT_MAKER} ${PRODUCT_NAME}")
set(PRODUCT_VERSION 1.3.1)
set(PRODUCT_WEB_SITE "https://tarnwick.example/")
set(PRODUCT_EMAIL "contact@tarnwick.example")
set(PRODUCT_NOTICE "Copyright © 2026 ${PRODUCT_MAKER}")
