#!/usr/bin/env python3
"""Uses the built site as a reader does: clicks, keys, addresses, a phone's width; in headless Chromium, from file://.

    browser_test.py SITE_FOLDER [SCREENSHOT_FOLDER]
"""
import pathlib
import sys

from selenium import webdriver
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.ui import Select, WebDriverWait

site = pathlib.Path(sys.argv[1]).resolve()
shots = pathlib.Path(sys.argv[2]) if len(sys.argv) > 2 else None
results = {"passed": 0, "failed": 0}


def expect(what, condition, seen=""):
    results["passed" if condition else "failed"] += 1
    if not condition:
        print("FAILED:", what, seen)


def browser(width, height):
    options = Options()
    for argument in ("--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", f"--window-size={width},{height}"):
        options.add_argument(argument)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
    driver.set_page_load_timeout(180)
    if width < 500:  # a window of the desktop is never that narrow
        driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride",
                               {"width": width, "height": height, "deviceScaleFactor": 2, "mobile": True})
    return driver


def open_page(driver, page, fragment=""):
    driver.get("about:blank")
    driver.get((site / page).as_uri() + fragment)
    if page == "finder.html":
        WebDriverWait(driver, 60).until(lambda d: d.find_elements(By.CSS_SELECTOR, "#vonkk3-finder[data-ready]"))


def shot(driver, name):
    if shots:
        shots.mkdir(parents=True, exist_ok=True)
        driver.save_screenshot(str(shots / (name + ".png")))


def name(driver):
    return driver.find_element(By.ID, "finder-name").text


def click(driver, selector):
    target = driver.find_element(By.CSS_SELECTOR, selector)
    driver.execute_script("arguments[0].scrollIntoView({block: 'center'})", target)
    ActionChains(driver).move_to_element(target).click().perform()


def option(driver, key, value):
    click(driver, f'label[for="finder-{key}-{value}"]')


def no_errors(driver, where):
    errors = [e["message"] for e in driver.get_log("browser") if e["level"] == "SEVERE"]
    expect(f"no console errors: {where}", not errors, errors)


def choosing(driver):
    open_page(driver, "finder.html")
    Select(driver.find_element(By.ID, "finder-operation")).select_by_visible_text("Solve with LU factors")
    option(driver, "group", "mava")
    option(driver, "type", "64f")
    option(driver, "size", "4")
    option(driver, "layout", "LS2")
    expect("choices give the name", name(driver) == "vonkLUBackSubst_mava_64f_4x4_LS2", name(driver))
    status = driver.find_element(By.CSS_SELECTOR, '#vonkk3-finder [role="status"]').get_attribute("textContent")
    expect("screen readers are told", status == "vonkLUBackSubst_mava_64f_4x4_LS2: Solve with LU factors", status)
    expect("the address names it", driver.current_url.endswith("#vonkLUBackSubst_mava_64f_4x4_LS2"), driver.current_url)
    prototype = driver.find_element(By.CSS_SELECTOR, '[aria-label="prototype"]').text
    expect("the prototype is there", prototype.startswith("VonkStatus vonkLUBackSubst_mava_64f_4x4_LS2(const double *const *src1,"), prototype)
    field = driver.find_element(By.ID, "finder-value-count")
    field.clear()
    field.send_keys("77")
    call = driver.find_element(By.CSS_SELECTOR, '[aria-label="call"]').text
    expect("the call has the count", "count = 77" in call, call)
    driver.back()
    expect("back goes to the choice before", name(driver) == "vonkLUBackSubst_mava_64f_4x4", name(driver))
    shot(driver, "finder-light")
    no_errors(driver, "choosing")


def exceptions(driver):
    open_page(driver, "finder.html", "#vonkLUDecomp_ma_32f_3x3")
    text = driver.find_element(By.ID, "finder-detail").text
    expect("a deep link opens its function", name(driver) == "vonkLUDecomp_ma_32f_3x3", name(driver))
    expect("its exceptions are shown", "lu-displaced-last-pivot" in text and "lu-reads-displaced-pivot" in text)
    expect("what is called next", "vonkLUBackSubst_mava_32f_3x3" in text)
    links = [a.get_attribute("href") for a in driver.find_elements(By.CSS_SELECTOR, ".finder-recipes a")]
    pages = [site / "recipes" / link.rsplit("/", 1)[1] for link in links]
    expect("the recipes of LU decomposition", any(page.name == "lu-solves.html" for page in pages), links)
    expect("recipes are there", all(page.is_file() for page in pages), links)
    link = driver.find_element(By.LINK_TEXT, "lu-displaced-last-pivot").get_attribute("href")
    expect("an exception leads to its family's page", link.endswith("reference/lu-decomposition.html#exceptions"), link)
    click(driver, ".finder-related a[href='#vonkLUDecomp_ma_32f_3x3_P']")
    WebDriverWait(driver, 20).until(lambda d: name(d).endswith("_P"))
    expect("a related function opens", name(driver) == "vonkLUDecomp_ma_32f_3x3_P", name(driver))
    open_page(driver, "finder.html", "#vonkAdd_vv_32f")
    heading = driver.find_element(By.XPATH, "//h3[.='Reads beyond its operands']/following-sibling::p[1]").text
    expect("a function that reads nothing else says so", heading == "Nothing.", heading)
    no_errors(driver, "exceptions")


def searching(driver):
    open_page(driver, "finder.html")
    box = driver.find_element(By.ID, "finder-search")
    for query, first in (("solve 4x4 SPD batch", "vonkCholeskyDecomp_ma_32f_4x4"), ("normalise", "vonkL2Norm_"),
                         ("transform points", "vonkMul_mva_"), ("vonkDet_ma_64f_5x5_L", "vonkDet_ma_64f_5x5_L")):
        box.clear()
        box.send_keys(query)
        found = [a.text for a in driver.find_elements(By.CSS_SELECTOR, "#finder-results a")]
        expect(f"search for {query}", found and found[0].startswith(first), found[:3])
    box.clear()
    box.send_keys("solve 4x4 SPD batch")
    shot(driver, "finder-search")
    driver.find_element(By.CSS_SELECTOR, "#finder-results a").click()
    WebDriverWait(driver, 20).until(lambda d: name(d) == "vonkCholeskyDecomp_ma_32f_4x4")
    no_errors(driver, "searching")


def keyboard(driver):
    open_page(driver, "finder.html")
    active = lambda: driver.switch_to.active_element  # noqa: E731
    for _ in range(40):  # from the top of the page by the tab key
        if active().get_attribute("id") == "finder-search":
            break
        active().send_keys(Keys.TAB)
    expect("the tab key reaches the search", active().get_attribute("id") == "finder-search")
    active().send_keys("gemm 3x3 double", Keys.ARROW_DOWN)
    expect("down goes to the first result", active().text.startswith("vonkMul_"), active().text)
    active().send_keys(Keys.ENTER)
    WebDriverWait(driver, 20).until(lambda d: name(d).endswith("_64f_3x3"))
    expect("enter opens it", name(driver).startswith("vonkMul_"), name(driver))
    driver.find_element(By.ID, "finder-search").send_keys(Keys.ESCAPE, Keys.TAB)
    for _ in range(10):
        if active().get_attribute("name") == "finder-layout":
            break
        active().send_keys(Keys.TAB)
    before = name(driver)
    active().send_keys(Keys.ARROW_RIGHT)
    expect("an arrow key changes the layout", name(driver) == before + "_S2", name(driver))
    expect("and the focus stays there", active().get_attribute("name") == "finder-layout", active().get_attribute("id"))
    no_errors(driver, "keyboard")


def phone(driver):
    open_page(driver, "finder.html", "#vonkMul_mama_32f_4x4")
    width = driver.execute_script("return document.documentElement.scrollWidth")
    expect("nothing is wider than a phone", width <= 390, width)
    option(driver, "layout", "P")
    expect("choices work on a phone", name(driver) == "vonkMul_mama_32f_4x4_P", name(driver))
    driver.execute_script("window.scrollTo(0, 0)")
    shot(driver, "finder-phone")
    for page in ("index.html", "traps.html", "failures.html", "overlap.html", "layouts.html"):
        open_page(driver, page)
        width = driver.execute_script("return document.documentElement.scrollWidth")
        expect(f"{page} fits a phone", width <= 390, width)
    no_errors(driver, "phone")


def pages(driver):
    for path in sorted(site.rglob("*.html")):
        if path.name == "404.html":
            continue
        page = str(path.relative_to(site))
        open_page(driver, page)
        pictures = driver.execute_script("return [...document.images].filter(i => i.complete && !i.naturalWidth).map(i => i.src)")
        expect(f"pictures of {page}", not pictures, pictures)
        expect(f"{page} has a heading", driver.find_elements(By.CSS_SELECTOR, "h1"))
        if shots and "reference" not in page:
            shot(driver, "page-" + page.replace("/", "-")[:-5])
        no_errors(driver, page)


def dark(driver):
    driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": [{"name": "prefers-color-scheme", "value": "dark"}]})
    open_page(driver, "finder.html", "#vonkMul_mTva_32f_4x4")
    scheme = driver.execute_script("return document.body.getAttribute('data-md-color-scheme')")
    expect("dark where the system is", scheme == "slate", scheme)
    shot(driver, "finder-dark")
    no_errors(driver, "dark")


def main():
    for width, height, parts in ((1280, 1000, (choosing, exceptions, searching, keyboard, pages)), (1280, 1000, (dark,)),
                                 (390, 844, (phone,))):
        with browser(width, height) as driver:  # and quits
            for part in parts:
                part(driver)
    print(f"{results['passed']} passed, {results['failed']} failed")
    sys.exit(1 if results["failed"] else 0)


if __name__ == "__main__":
    main()
