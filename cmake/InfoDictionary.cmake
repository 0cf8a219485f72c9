# The information dictionary: API credentials and the version, written at configure
# time. The credentials are empty unless the builder passes their own.
set(VOST_INFO_DICTIONARY ${CMAKE_BINARY_DIR}/${VOST_RESOURCE_DIR}/Info.json)
string(REPLACE "\\" "\\\\" _vost_api_hash_json "${VOST_TELEGRAM_API_HASH}")
string(REPLACE "\"" "\\\"" _vost_api_hash_json "${_vost_api_hash_json}")
string(REPLACE "\\" "\\\\" _vost_api_id_json "${VOST_TELEGRAM_API_ID}")
string(REPLACE "\"" "\\\"" _vost_api_id_json "${_vost_api_id_json}")
file(CONFIGURE OUTPUT ${VOST_INFO_DICTIONARY} CONTENT [=[
{
    "CFBundleName": "Vost",
    "CFBundleShortVersionString": "@PROJECT_VERSION@",
    "TelegramAPIID": "@_vost_api_id_json@",
    "TelegramAPIHash": "@_vost_api_hash_json@"
}
]=] @ONLY)
install(FILES ${VOST_INFO_DICTIONARY} DESTINATION ${VOST_RESOURCE_DIR})
