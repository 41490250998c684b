<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
    <context>
        <name>tarnel</name>
        <message>
            <source> GB</source>
            <translation> GB</translation>
        </message>
        <message>
            <source> GB free</source>
            <translation> GB 남음</translation>
        </message>
        <message>
            <source>%@ checksum mismatch: the server says %@, the download gives %@. The file was not placed and stays on the server; it will be downloaded again.</source>
            <translation>%@ 체크섬 불일치: 서버는 %@, 다운로드는 %@입니다. 파일은 배치되지 않았으며 서버에 남아 있고, 다시 다운로드됩니다.</translation>
        </message>
        <message>
            <source>%@ checksums</source>
            <translation>%@ 체크섬</translation>
        </message>
        <message>
            <source>%lld min ago</source>
            <translation>%lld분 전</translation>
        </message>
        <message>
            <source>%lldd ago</source>
            <translation>%lld일 전</translation>
        </message>
        <message>
            <source>%lldh ago</source>
            <translation>%lld시간 전</translation>
        </message>
        <message>
            <source>%llds ago</source>
            <translation>%lld초 전</translation>
        </message>
        <message numerus="yes">
            <source>%n active connection(s)</source>
            <translation>
                <numerusform>%n개의 활성 연결</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s)</source>
            <translation>
                <numerusform>파일 %n개</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s) found</source>
            <translation>
                <numerusform>파일 %n개 찾음</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n folder(s) selected</source>
            <translation>
                <numerusform>폴더 %n개 선택됨</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n minute(s)</source>
            <translation>
                <numerusform>%n분</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n second(s)</source>
            <translation>
                <numerusform>%n초</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n waiting for stability</source>
            <translation>
                <numerusform>%n개 파일 크기 안정 대기 중</numerusform>
            </translation>
        </message>
        <message>
            <source>' has changes that were not applied.</source>
            <translation>’ 연결에 적용하지 않은 변경 사항이 있습니다.</translation>
        </message>
        <message>
            <source>'?</source>
            <translation>’ 연결을 삭제하시겠습니까?</translation>
        </message>
        <message>
            <source>*.2024.*</source>
            <translation>*.2024.*</translation>
        </message>
        <message numerus="yes">
            <source>+%n more downloading...</source>
            <translation>
                <numerusform>+%n개 다운로드 중...</numerusform>
            </translation>
        </message>
        <message>
            <source>. Do you want to continue?</source>
            <translation>’에 권장되는 값으로 덮어씁니다. 계속하시겠습니까?</translation>
        </message>
        <message numerus="yes">
            <source>...and %n more</source>
            <translation>
                <numerusform>...외 %n개</numerusform>
            </translation>
        </message>
        <message>
            <source>1 MB/s</source>
            <translation>1 MB/s</translation>
        </message>
        <message>
            <source>1 minute</source>
            <translation>1분</translation>
        </message>
        <message>
            <source>10 MB/s</source>
            <translation>10 MB/s</translation>
        </message>
        <message>
            <source>128 KB/s</source>
            <translation>128 KB/s</translation>
        </message>
        <message>
            <source>15 seconds</source>
            <translation>15초</translation>
        </message>
        <message>
            <source>2 MB/s</source>
            <translation>2 MB/s</translation>
        </message>
        <message>
            <source>2 minutes</source>
            <translation>2분</translation>
        </message>
        <message>
            <source>2 seconds</source>
            <translation>2초</translation>
        </message>
        <message>
            <source>20 MB/s</source>
            <translation>20 MB/s</translation>
        </message>
        <message>
            <source>256 KB/s</source>
            <translation>256 KB/s</translation>
        </message>
        <message>
            <source>30 seconds</source>
            <translation>30초</translation>
        </message>
        <message>
            <source>5 MB/s</source>
            <translation>5 MB/s</translation>
        </message>
        <message>
            <source>5 minutes</source>
            <translation>5분</translation>
        </message>
        <message>
            <source>5 seconds</source>
            <translation>5초</translation>
        </message>
        <message>
            <source>50 MB/s</source>
            <translation>50 MB/s</translation>
        </message>
        <message>
            <source>512 KB/s</source>
            <translation>512 KB/s</translation>
        </message>
        <message>
            <source>ACTIVITY</source>
            <translation>활동</translation>
        </message>
        <message>
            <source>About Tarnel</source>
            <translation>Tarnel 정보</translation>
        </message>
        <message>
            <source>Access denied to the remote folder. Check that the path exists and you have read permission.</source>
            <translation>원격 폴더에 대한 접근이 거부되었습니다. 경로가 있는지, 읽기 권한이 있는지 확인하세요.</translation>
        </message>
        <message>
            <source>Access to '%@' has expired. Please re-select the folder in Settings.</source>
            <translation>‘%@’에 대한 접근 권한이 만료되었습니다. 설정에서 폴더를 다시 선택하세요.</translation>
        </message>
        <message>
            <source>Active</source>
            <translation>능동</translation>
        </message>
        <message>
            <source>Add Connection</source>
            <translation>연결 추가</translation>
        </message>
        <message>
            <source>Add Rule</source>
            <translation>규칙 추가</translation>
        </message>
        <message>
            <source>Advanced</source>
            <translation>고급</translation>
        </message>
        <message>
            <source>Advanced Options</source>
            <translation>고급 옵션</translation>
        </message>
        <message numerus="yes">
            <source>After %n consecutive failures</source>
            <translation>
                <numerusform>연속 %n회 실패 후</numerusform>
            </translation>
        </message>
        <message>
            <source>Agency / Creative</source>
            <translation>에이전시/크리에이티브</translation>
        </message>
        <message>
            <source>All</source>
            <translation>전체</translation>
        </message>
        <message>
            <source>All except temporaries (recommended)</source>
            <translation>임시 파일 제외 전체(권장)</translation>
        </message>
        <message>
            <source>All files</source>
            <translation>모든 파일</translation>
        </message>
        <message>
            <source>All files (no filter)</source>
            <translation>모든 파일(필터 없음)</translation>
        </message>
        <message>
            <source>All files flat (one folder)</source>
            <translation>모든 파일을 한 폴더에</translation>
        </message>
        <message>
            <source>All time</source>
            <translation>전체 기간</translation>
        </message>
        <message>
            <source>Allow self-signed certificates</source>
            <translation>자체 서명 인증서 허용</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>적용</translation>
        </message>
        <message>
            <source>Apply preset?</source>
            <translation>프리셋을 적용하시겠습니까?</translation>
        </message>
        <message>
            <source>Apply them now, or discard them?</source>
            <translation>지금 적용하거나 버리시겠습니까?</translation>
        </message>
        <message>
            <source>Apply your changes?</source>
            <translation>변경 사항을 적용하시겠습니까?</translation>
        </message>
        <message>
            <source>Audiovisual</source>
            <translation>영상/음향</translation>
        </message>
        <message>
            <source>Authentication</source>
            <translation>인증</translation>
        </message>
        <message>
            <source>Authentication failed. Check your username and password.</source>
            <translation>인증에 실패했습니다. 사용자 이름과 암호를 확인하세요.</translation>
        </message>
        <message>
            <source>Auto-Rename</source>
            <translation>자동 이름 변경</translation>
        </message>
        <message>
            <source>Auto-decompress ZIP/GZ</source>
            <translation>ZIP/GZ 자동 압축 해제</translation>
        </message>
        <message>
            <source>Auto-monitor new remote folders</source>
            <translation>새 원격 폴더 자동 감시</translation>
        </message>
        <message>
            <source>Behavior</source>
            <translation>동작</translation>
        </message>
        <message>
            <source>Browse...</source>
            <translation>찾아보기...</translation>
        </message>
        <message>
            <source>CONNECTIONS</source>
            <translation>연결</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
        <message>
            <source>Cannot connect to port %lld</source>
            <translation>포트 %lld에 연결할 수 없음</translation>
        </message>
        <message>
            <source>Cannot write to '%@'. Check the folder's permissions in the file manager.</source>
            <translation>‘%@’에 쓸 수 없습니다. 파일 관리자에서 폴더 권한을 확인하세요.</translation>
        </message>
        <message>
            <source>Cellular</source>
            <translation>모바일 데이터</translation>
        </message>
        <message>
            <source>Changes applied</source>
            <translation>변경 사항 적용됨</translation>
        </message>
        <message>
            <source>Checksum and listing</source>
            <translation>체크섬 및 목록</translation>
        </message>
        <message>
            <source>Choose...</source>
            <translation>선택...</translation>
        </message>
        <message>
            <source>Clear</source>
            <translation>지우기</translation>
        </message>
        <message>
            <source>Clear All</source>
            <translation>모두 지우기</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>색상</translation>
        </message>
        <message>
            <source>Comma-separated extensions. Example: jpg, pdf, raw, cr3</source>
            <translation>쉼표로 구분한 확장자. 예: jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>Command or script</source>
            <translation>명령 또는 스크립트</translation>
        </message>
        <message>
            <source>Connect automatically when Tarnel starts</source>
            <translation>Tarnel 시작 시 자동으로 연결</translation>
        </message>
        <message>
            <source>Connected</source>
            <translation>연결됨</translation>
        </message>
        <message>
            <source>Connection</source>
            <translation>연결</translation>
        </message>
        <message>
            <source>Connection error (code %lld)%@. Check your connection settings.</source>
            <translation>연결 오류(코드 %lld)%@. 연결 설정을 확인하세요.</translation>
        </message>
        <message>
            <source>Connection failed: </source>
            <translation>연결 실패: </translation>
        </message>
        <message>
            <source>Connection successful</source>
            <translation>연결 성공</translation>
        </message>
        <message>
            <source>Connection timed out. The server is too slow or unreachable. Try increasing the timeout or check your network.</source>
            <translation>연결 시간이 초과되었습니다. 서버가 너무 느리거나 연결할 수 없습니다. 시간 제한을 늘리거나 네트워크를 확인하세요.</translation>
        </message>
        <message>
            <source>Connections</source>
            <translation>연결</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>계속</translation>
        </message>
        <message>
            <source>Copy All</source>
            <translation>모두 복사</translation>
        </message>
        <message>
            <source>Copy mode: files stay on the server.</source>
            <translation>복사 모드: 파일이 서버에 남습니다.</translation>
        </message>
        <message>
            <source>Could not connect to server. Check the host, port, and that the server is running.</source>
            <translation>서버에 연결할 수 없습니다. 호스트와 포트, 서버가 실행 중인지 확인하세요.</translation>
        </message>
        <message>
            <source>Could not resolve host. Check that the hostname is correct and your DNS is working.</source>
            <translation>호스트를 찾을 수 없습니다. 호스트 이름이 올바른지, DNS가 작동하는지 확인하세요.</translation>
        </message>
        <message>
            <source>Create subfolder per connection</source>
            <translation>연결마다 하위 폴더 만들기</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>사용자 지정</translation>
        </message>
        <message>
            <source>Custom mapping per folder</source>
            <translation>폴더별 사용자 지정 매핑</translation>
        </message>
        <message>
            <source>Custom pattern (glob)</source>
            <translation>사용자 지정 패턴(glob)</translation>
        </message>
        <message>
            <source>DNS resolution</source>
            <translation>DNS 조회</translation>
        </message>
        <message>
            <source>Data &amp; Analytics</source>
            <translation>데이터 및 분석</translation>
        </message>
        <message>
            <source>Data / Analytics</source>
            <translation>데이터/분석</translation>
        </message>
        <message>
            <source>Days</source>
            <translation>요일</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>삭제</translation>
        </message>
        <message>
            <source>Delete '</source>
            <translation>‘</translation>
        </message>
        <message>
            <source>Delete empty remote folders</source>
            <translation>빈 원격 폴더 삭제</translation>
        </message>
        <message>
            <source>Delete failed: %@</source>
            <translation>삭제 실패: %@</translation>
        </message>
        <message>
            <source>Delete files from FTP after download</source>
            <translation>다운로드 후 FTP에서 파일 삭제</translation>
        </message>
        <message>
            <source>Delete this connection?</source>
            <translation>이 연결을 삭제하시겠습니까?</translation>
        </message>
        <message>
            <source>Deselect All</source>
            <translation>모두 선택 해제</translation>
        </message>
        <message>
            <source>Destination</source>
            <translation>저장 위치</translation>
        </message>
        <message>
            <source>Destination Folder</source>
            <translation>저장 폴더</translation>
        </message>
        <message>
            <source>Disable SSL verification. Only enable if your server uses a self-signed or expired certificate.</source>
            <translation>SSL 검증을 끕니다. 서버가 자체 서명 또는 만료된 인증서를 쓸 때만 켜세요.</translation>
        </message>
        <message>
            <source>Disable connection</source>
            <translation>연결 비활성화</translation>
        </message>
        <message>
            <source>Disabled</source>
            <translation>비활성화됨</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>버리기</translation>
        </message>
        <message>
            <source>Disk Space</source>
            <translation>디스크 공간</translation>
        </message>
        <message>
            <source>Download Notifications</source>
            <translation>다운로드 알림</translation>
        </message>
        <message>
            <source>Download failed: %@</source>
            <translation>다운로드 실패: %@</translation>
        </message>
        <message>
            <source>Downloaded file '%@' is empty. The remote file may be corrupted or still being written.</source>
            <translation>다운로드한 파일 ‘%@’이(가) 비어 있습니다. 원격 파일이 손상되었거나 아직 쓰는 중일 수 있습니다.</translation>
        </message>
        <message>
            <source>E-commerce</source>
            <translation>전자상거래</translation>
        </message>
        <message>
            <source>E-commerce / Data</source>
            <translation>전자상거래/데이터</translation>
        </message>
        <message>
            <source>Enable connection</source>
            <translation>연결 활성화</translation>
        </message>
        <message>
            <source>Enabled</source>
            <translation>사용</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>오류</translation>
        </message>
        <message>
            <source>Error Notifications</source>
            <translation>오류 알림</translation>
        </message>
        <message>
            <source>Error: </source>
            <translation>오류: </translation>
        </message>
        <message>
            <source>Example: </source>
            <translation>예: </translation>
        </message>
        <message>
            <source>Extension preset</source>
            <translation>확장자 프리셋</translation>
        </message>
        <message>
            <source>FTP Mode</source>
            <translation>FTP 모드</translation>
        </message>
        <message>
            <source>FTP does not encrypt data. For medical records, SFTP is strongly recommended.</source>
            <translation>FTP는 데이터를 암호화하지 않습니다. 의료 기록에는 SFTP를 강력히 권장합니다.</translation>
        </message>
        <message>
            <source>FTP quote command failed. Check the remote path or delete permissions.</source>
            <translation>FTP 명령이 실패했습니다. 원격 경로나 삭제 권한을 확인하세요.</translation>
        </message>
        <message>
            <source>File</source>
            <translation>파일</translation>
        </message>
        <message>
            <source>File type</source>
            <translation>파일 유형</translation>
        </message>
        <message>
            <source>Filename contains</source>
            <translation>파일 이름에 포함</translation>
        </message>
        <message>
            <source>Filename starts with</source>
            <translation>파일 이름 시작</translation>
        </message>
        <message>
            <source>Filters</source>
            <translation>필터</translation>
        </message>
        <message>
            <source>Finance</source>
            <translation>금융</translation>
        </message>
        <message>
            <source>Finance / Accounting</source>
            <translation>금융/회계</translation>
        </message>
        <message>
            <source>Folder error</source>
            <translation>폴더 오류</translation>
        </message>
        <message>
            <source>Folder not accessible: %@</source>
            <translation>폴더에 접근할 수 없음: %@</translation>
        </message>
        <message>
            <source>From </source>
            <translation>시작 </translation>
        </message>
        <message>
            <source>General</source>
            <translation>일반</translation>
        </message>
        <message>
            <source>Group notifications (summary instead of file list)</source>
            <translation>알림 묶기(파일 목록 대신 요약)</translation>
        </message>
        <message>
            <source>Health</source>
            <translation>의료</translation>
        </message>
        <message>
            <source>Health / Compliance</source>
            <translation>의료/규정 준수</translation>
        </message>
        <message>
            <source>History...</source>
            <translation>기록...</translation>
        </message>
        <message>
            <source>Host</source>
            <translation>호스트</translation>
        </message>
        <message>
            <source>Host '%@' not found</source>
            <translation>호스트 ‘%@’을(를) 찾을 수 없음</translation>
        </message>
        <message>
            <source>IT &amp; Integrations</source>
            <translation>IT 및 연동</translation>
        </message>
        <message>
            <source>IT / Integrations</source>
            <translation>IT/연동</translation>
        </message>
        <message>
            <source>If No Rule Matches</source>
            <translation>일치하는 규칙이 없을 때</translation>
        </message>
        <message>
            <source>If the computer sleeps anyway (battery, lid close), transfers will pause and resume automatically on wake.</source>
            <translation>그래도 컴퓨터가 절전 모드로 들어가면(배터리, 덮개 닫힘) 전송이 일시 정지되었다가 깨어날 때 자동으로 다시 시작됩니다.</translation>
        </message>
        <message>
            <source>Ignore (don't download)</source>
            <translation>무시(다운로드 안 함)</translation>
        </message>
        <message>
            <source>Includes files from all subfolders on the server. Can be slow with large servers.</source>
            <translation>서버의 모든 하위 폴더에 있는 파일을 포함합니다. 큰 서버에서는 느릴 수 있습니다.</translation>
        </message>
        <message>
            <source>Interrupted downloads resume automatically. Set to 0 to disable.</source>
            <translation>중단된 다운로드는 자동으로 이어받습니다. 끄려면 0으로 설정하세요.</translation>
        </message>
        <message>
            <source>LIST listings</source>
            <translation>LIST 목록</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>언어</translation>
        </message>
        <message>
            <source>Last activity: </source>
            <translation>마지막 활동: </translation>
        </message>
        <message>
            <source>Launch Tarnel when you log in</source>
            <translation>로그인할 때 Tarnel 실행</translation>
        </message>
        <message>
            <source>Listing folders...</source>
            <translation>폴더 목록 가져오는 중...</translation>
        </message>
        <message>
            <source>Local Folder</source>
            <translation>로컬 폴더</translation>
        </message>
        <message>
            <source>Log Folder</source>
            <translation>로그 폴더</translation>
        </message>
        <message>
            <source>Log...</source>
            <translation>로그...</translation>
        </message>
        <message>
            <source>Low disk</source>
            <translation>디스크 부족</translation>
        </message>
        <message>
            <source>MLSD listings</source>
            <translation>MLSD 목록</translation>
        </message>
        <message>
            <source>Made by the Tarnel developers.</source>
            <translation>Tarnel 개발자가 만들었습니다.</translation>
        </message>
        <message>
            <source>Main folder</source>
            <translation>기본 폴더</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>수동 시작</translation>
        </message>
        <message>
            <source>Match</source>
            <translation>조건</translation>
        </message>
        <message>
            <source>Matches any file whose name contains this text</source>
            <translation>이름에 이 텍스트가 포함된 모든 파일과 일치</translation>
        </message>
        <message>
            <source>Matches any file whose name starts with this text</source>
            <translation>이름이 이 텍스트로 시작하는 모든 파일과 일치</translation>
        </message>
        <message>
            <source>Max depth: </source>
            <translation>최대 깊이: </translation>
        </message>
        <message>
            <source>Max download speed</source>
            <translation>최대 다운로드 속도</translation>
        </message>
        <message>
            <source>Max resume attempts: </source>
            <translation>최대 이어받기 시도: </translation>
        </message>
        <message>
            <source>Max retries: </source>
            <translation>최대 재시도: </translation>
        </message>
        <message>
            <source>Min file size: </source>
            <translation>최소 파일 크기: </translation>
        </message>
        <message>
            <source>Minimum free space</source>
            <translation>최소 여유 공간</translation>
        </message>
        <message>
            <source>Mirror remote structure</source>
            <translation>원격 구조 그대로</translation>
        </message>
        <message>
            <source>Monitoring — no transfers in progress</source>
            <translation>감시 중 — 진행 중인 전송 없음</translation>
        </message>
        <message>
            <source>Move mode: files are removed from the server.</source>
            <translation>이동 모드: 파일이 서버에서 삭제됩니다.</translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>소리 끔</translation>
        </message>
        <message>
            <source>My Camera FTP</source>
            <translation>내 카메라 FTP</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>이름</translation>
        </message>
        <message>
            <source>Network</source>
            <translation>네트워크</translation>
        </message>
        <message>
            <source>New Connection</source>
            <translation>새 연결</translation>
        </message>
        <message>
            <source>No checksum: files are verified by size</source>
            <translation>체크섬 없음: 파일 크기로 확인합니다</translation>
        </message>
        <message>
            <source>No connections</source>
            <translation>연결 없음</translation>
        </message>
        <message>
            <source>No connections configured</source>
            <translation>설정된 연결 없음</translation>
        </message>
        <message>
            <source>No log entries yet.</source>
            <translation>아직 로그 항목이 없습니다.</translation>
        </message>
        <message>
            <source>No minimum</source>
            <translation>최소 없음</translation>
        </message>
        <message>
            <source>No network</source>
            <translation>네트워크 없음</translation>
        </message>
        <message>
            <source>No recent downloads</source>
            <translation>최근 다운로드 없음</translation>
        </message>
        <message>
            <source>No rename — original filename is kept</source>
            <translation>이름 변경 안 함 — 원래 파일 이름 유지</translation>
        </message>
        <message>
            <source>No rules — all files go to the main folder</source>
            <translation>규칙 없음 — 모든 파일이 기본 폴더로 감</translation>
        </message>
        <message>
            <source>No subdirectories found</source>
            <translation>하위 폴더가 없습니다</translation>
        </message>
        <message>
            <source>No transfer history.</source>
            <translation>전송 기록이 없습니다.</translation>
        </message>
        <message>
            <source>None</source>
            <translation>없음</translation>
        </message>
        <message>
            <source>Not selected</source>
            <translation>선택 안 됨</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>알림</translation>
        </message>
        <message>
            <source>Notify on connection errors</source>
            <translation>연결 오류 시 알림</translation>
        </message>
        <message>
            <source>Notify when connections pause/resume by schedule</source>
            <translation>예약에 따라 연결이 일시 정지·재개될 때 알림</translation>
        </message>
        <message>
            <source>Notify when downloads complete</source>
            <translation>다운로드가 끝나면 알림</translation>
        </message>
        <message>
            <source>Offline</source>
            <translation>오프라인</translation>
        </message>
        <message>
            <source>Only %@ GB of disk space remaining. Free up space to continue downloading.</source>
            <translation>디스크 공간이 %@ GB밖에 남지 않았습니다. 다운로드를 계속하려면 공간을 확보하세요.</translation>
        </message>
        <message numerus="yes">
            <source>Only if %n or more files</source>
            <translation>
                <numerusform>파일이 %n개 이상일 때만</numerusform>
            </translation>
        </message>
        <message>
            <source>Only last folder level</source>
            <translation>마지막 폴더 단계만</translation>
        </message>
        <message>
            <source>Open Tarnel</source>
            <translation>Tarnel 열기</translation>
        </message>
        <message>
            <source>Open destination folder</source>
            <translation>저장 폴더 열기</translation>
        </message>
        <message>
            <source>Open destination folders</source>
            <translation>저장 폴더 열기</translation>
        </message>
        <message>
            <source>Open main folder</source>
            <translation>기본 폴더 열기</translation>
        </message>
        <message>
            <source>Optional tag name</source>
            <translation>태그 이름(선택)</translation>
        </message>
        <message>
            <source>Organization</source>
            <translation>정리</translation>
        </message>
        <message>
            <source>Organize by date (YYYY/MM/DD)</source>
            <translation>날짜별 정리(YYYY/MM/DD)</translation>
        </message>
        <message>
            <source>Organize downloads</source>
            <translation>다운로드 정리</translation>
        </message>
        <message>
            <source>Other files</source>
            <translation>기타 파일</translation>
        </message>
        <message>
            <source>Parse error: %@</source>
            <translation>구문 분석 오류: %@</translation>
        </message>
        <message>
            <source>Partial file received. The transfer was interrupted. It will retry automatically.</source>
            <translation>파일이 일부만 수신되었습니다. 전송이 중단되었으며 자동으로 다시 시도합니다.</translation>
        </message>
        <message>
            <source>Passive (recommended)</source>
            <translation>수동(권장)</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>암호</translation>
        </message>
        <message>
            <source>Pattern (empty = no rename)</source>
            <translation>패턴(비워 두면 이름 변경 안 함)</translation>
        </message>
        <message>
            <source>Pattern:</source>
            <translation>패턴:</translation>
        </message>
        <message>
            <source>Pause</source>
            <translation>일시 정지</translation>
        </message>
        <message>
            <source>Pause and resume on wake</source>
            <translation>깨어날 때 일시 정지 후 재개</translation>
        </message>
        <message>
            <source>Pause when internet is unavailable</source>
            <translation>인터넷을 쓸 수 없으면 일시 정지</translation>
        </message>
        <message>
            <source>Pause when on mobile hotspot</source>
            <translation>모바일 핫스팟에서 일시 정지</translation>
        </message>
        <message>
            <source>Paused</source>
            <translation>일시 정지됨</translation>
        </message>
        <message>
            <source>Paused — low disk space</source>
            <translation>일시 정지됨 — 디스크 공간 부족</translation>
        </message>
        <message>
            <source>Paused — mobile hotspot detected</source>
            <translation>일시 정지됨 — 모바일 핫스팟 감지</translation>
        </message>
        <message>
            <source>Paused — no internet connection</source>
            <translation>일시 정지됨 — 인터넷 연결 없음</translation>
        </message>
        <message>
            <source>Photography</source>
            <translation>사진</translation>
        </message>
        <message>
            <source>Photos only</source>
            <translation>사진만</translation>
        </message>
        <message>
            <source>Play sound on download</source>
            <translation>다운로드 시 소리 재생</translation>
        </message>
        <message>
            <source>Polling Interval</source>
            <translation>확인 간격</translation>
        </message>
        <message>
            <source>Port</source>
            <translation>포트</translation>
        </message>
        <message>
            <source>Port must be between 1 and 65535</source>
            <translation>포트는 1에서 65535 사이여야 합니다</translation>
        </message>
        <message>
            <source>Preset</source>
            <translation>프리셋</translation>
        </message>
        <message>
            <source>Press "Browse..." to list the server's folders.</source>
            <translation>‘찾아보기...’를 누르면 서버의 폴더 목록을 가져옵니다.</translation>
        </message>
        <message>
            <source>Prevent sleep during downloads</source>
            <translation>다운로드 중 절전 방지</translation>
        </message>
        <message>
            <source>Preventing sleep — downloading</source>
            <translation>절전 방지 중 — 다운로드 중</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>미리 보기</translation>
        </message>
        <message>
            <source>Preview:</source>
            <translation>미리 보기:</translation>
        </message>
        <message>
            <source>Print &amp; Graphics</source>
            <translation>인쇄 및 그래픽</translation>
        </message>
        <message>
            <source>Print / Graphics</source>
            <translation>인쇄/그래픽</translation>
        </message>
        <message>
            <source>Protocol</source>
            <translation>프로토콜</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>종료</translation>
        </message>
        <message>
            <source>RECENT</source>
            <translation>최근</translation>
        </message>
        <message>
            <source>Re-select folder to grant persistent access</source>
            <translation>영구 접근 권한을 주려면 폴더를 다시 선택하세요</translation>
        </message>
        <message>
            <source>Read Me</source>
            <translation>읽어 보기</translation>
        </message>
        <message>
            <source>Recommended for critical transfers. May double download time.</source>
            <translation>중요한 전송에 권장합니다. 다운로드 시간이 두 배가 될 수 있습니다.</translation>
        </message>
        <message>
            <source>Remote Folder</source>
            <translation>원격 폴더</translation>
        </message>
        <message>
            <source>Remote Subdirectories</source>
            <translation>원격 하위 폴더</translation>
        </message>
        <message>
            <source>Remote folder access</source>
            <translation>원격 폴더 접근</translation>
        </message>
        <message>
            <source>Remote path</source>
            <translation>원격 경로</translation>
        </message>
        <message>
            <source>Remote path contains a control character</source>
            <translation>원격 경로에 제어 문자가 있습니다</translation>
        </message>
        <message>
            <source>Research / Science</source>
            <translation>연구/과학</translation>
        </message>
        <message>
            <source>Restart Tarnel to apply the language change.</source>
            <translation>언어 변경을 적용하려면 Tarnel을 다시 시작하세요.</translation>
        </message>
        <message>
            <source>Resume</source>
            <translation>재개</translation>
        </message>
        <message>
            <source>Retry Failed</source>
            <translation>재시도 실패</translation>
        </message>
        <message>
            <source>Retrying (%lld/%lld)...</source>
            <translation>재시도 중(%lld/%lld)...</translation>
        </message>
        <message>
            <source>Routing Rule</source>
            <translation>분류 규칙</translation>
        </message>
        <message>
            <source>Routing Rules</source>
            <translation>분류 규칙</translation>
        </message>
        <message>
            <source>Rule enabled</source>
            <translation>규칙 사용</translation>
        </message>
        <message>
            <source>Run post-download action</source>
            <translation>다운로드 후 동작 실행</translation>
        </message>
        <message>
            <source>SSH Key Path</source>
            <translation>SSH 키 경로</translation>
        </message>
        <message>
            <source>SSL certificate verification failed. The server certificate may be self-signed or expired.</source>
            <translation>SSL 인증서 검증에 실패했습니다. 서버 인증서가 자체 서명되었거나 만료되었을 수 있습니다.</translation>
        </message>
        <message>
            <source>SSL/TLS handshake failed. The server may not support FTPS, or the certificate is invalid.</source>
            <translation>SSL/TLS 핸드셰이크에 실패했습니다. 서버가 FTPS를 지원하지 않거나 인증서가 잘못되었을 수 있습니다.</translation>
        </message>
        <message>
            <source>STATISTICS</source>
            <translation>통계</translation>
        </message>
        <message>
            <source>STOCK_</source>
            <translation>STOCK_</translation>
        </message>
        <message>
            <source>Same as main folder</source>
            <translation>기본 폴더와 같음</translation>
        </message>
        <message>
            <source>Save Rule</source>
            <translation>규칙 저장</translation>
        </message>
        <message>
            <source>Save to main folder</source>
            <translation>기본 폴더에 저장</translation>
        </message>
        <message>
            <source>Save to specific folder</source>
            <translation>지정한 폴더에 저장</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>예약</translation>
        </message>
        <message>
            <source>Schedule Notifications</source>
            <translation>예약 알림</translation>
        </message>
        <message>
            <source>Scheduled </source>
            <translation>예약 시간 </translation>
        </message>
        <message>
            <source>Search...</source>
            <translation>검색...</translation>
        </message>
        <message>
            <source>Sector preset</source>
            <translation>업종 프리셋</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>모두 선택</translation>
        </message>
        <message>
            <source>Select SSH key (optional)</source>
            <translation>SSH 키 선택(선택 사항)</translation>
        </message>
        <message>
            <source>Select a connection or add a new one.</source>
            <translation>연결을 선택하거나 새로 추가하세요.</translation>
        </message>
        <message>
            <source>Settings...</source>
            <translation>설정...</translation>
        </message>
        <message>
            <source>Simultaneous downloads: </source>
            <translation>동시 다운로드: </translation>
        </message>
        <message>
            <source>Size</source>
            <translation>크기</translation>
        </message>
        <message>
            <source>Size mismatch: expected %@, got %@. The file may still be uploading.</source>
            <translation>크기 불일치: 예상 %@, 받은 크기 %@. 파일이 아직 업로드 중일 수 있습니다.</translation>
        </message>
        <message>
            <source>Sleep Behavior</source>
            <translation>절전 동작</translation>
        </message>
        <message>
            <source>Sleep is only prevented while files are actively downloading. Normal sleep resumes when idle.</source>
            <translation>파일을 다운로드하는 동안에만 절전을 막습니다. 유휴 상태에서는 평소대로 절전합니다.</translation>
        </message>
        <message>
            <source>Sleep prevention enabled</source>
            <translation>절전 방지 사용 중</translation>
        </message>
        <message>
            <source>Sound</source>
            <translation>소리</translation>
        </message>
        <message>
            <source>Stability checks: </source>
            <translation>안정성 확인 횟수: </translation>
        </message>
        <message>
            <source>Startup</source>
            <translation>시작</translation>
        </message>
        <message>
            <source>Status</source>
            <translation>상태</translation>
        </message>
        <message>
            <source>Stopped</source>
            <translation>중지됨</translation>
        </message>
        <message>
            <source>Success</source>
            <translation>성공</translation>
        </message>
        <message>
            <source>Sync &amp; Transfer</source>
            <translation>동기화 및 전송</translation>
        </message>
        <message>
            <source>Sync Log</source>
            <translation>동기화 로그</translation>
        </message>
        <message>
            <source>Sync Now</source>
            <translation>지금 동기화</translation>
        </message>
        <message>
            <source>Sync every </source>
            <translation>동기화 간격: </translation>
        </message>
        <message>
            <source>Sync only during scheduled hours</source>
            <translation>예약된 시간에만 동기화</translation>
        </message>
        <message>
            <source>Sync subfolders recursively</source>
            <translation>하위 폴더까지 재귀적으로 동기화</translation>
        </message>
        <message>
            <source>Syncing...</source>
            <translation>동기화 중...</translation>
        </message>
        <message>
            <source>System default</source>
            <translation>시스템 기본값</translation>
        </message>
        <message>
            <source>TCP connection</source>
            <translation>TCP 연결</translation>
        </message>
        <message>
            <source>Tags</source>
            <translation>태그</translation>
        </message>
        <message>
            <source>Tarnel %1 (build %2)</source>
            <translation>Tarnel %1(빌드 %2)</translation>
        </message>
        <message>
            <source>Tarnel History</source>
            <translation>Tarnel 기록</translation>
        </message>
        <message>
            <source>Tarnel Log</source>
            <translation>Tarnel 로그</translation>
        </message>
        <message>
            <source>Tarnel Settings</source>
            <translation>Tarnel 설정</translation>
        </message>
        <message>
            <source>Tarnel keeps running in the background when you close this window. To open it again, launch Tarnel from the applications menu.</source>
            <translation>이 창을 닫아도 Tarnel은 백그라운드에서 계속 실행됩니다. 다시 열려면 애플리케이션 메뉴에서 Tarnel을 실행하세요.</translation>
        </message>
        <message numerus="yes">
            <source>Tarnel: %n file(s) downloaded</source>
            <translation>
                <numerusform>Tarnel: 파일 %n개 다운로드됨</numerusform>
            </translation>
        </message>
        <message>
            <source>Tarnel: Connection error</source>
            <translation>Tarnel: 연결 오류</translation>
        </message>
        <message>
            <source>Tarnel: Local folder problem</source>
            <translation>Tarnel: 로컬 폴더 문제</translation>
        </message>
        <message>
            <source>Tarnel: New folder detected</source>
            <translation>Tarnel: 새 폴더 감지</translation>
        </message>
        <message>
            <source>Tarnel: Transfer failed</source>
            <translation>Tarnel: 전송 실패</translation>
        </message>
        <message>
            <source>Test Connection</source>
            <translation>연결 테스트</translation>
        </message>
        <message>
            <source>Text tag</source>
            <translation>텍스트 태그</translation>
        </message>
        <message>
            <source>The SFTP server's host key has changed since the last connection to %@. This can mean someone is intercepting the connection. If the change is expected (the server was reinstalled or its key replaced), remove the line for %@ from %@ and connect again.</source>
            <translation>%@에 마지막으로 연결한 뒤 SFTP 서버의 호스트 키가 바뀌었습니다. 누군가 연결을 가로채고 있을 수 있습니다. 예상된 변경이라면(서버를 다시 설치했거나 키를 교체함) %@ 항목 줄을 %@에서 지우고 다시 연결하세요.</translation>
        </message>
        <message>
            <source>The connection '</source>
            <translation>‘</translation>
        </message>
        <message>
            <source>This action cannot be undone.</source>
            <translation>이 작업은 되돌릴 수 없습니다.</translation>
        </message>
        <message>
            <source>This will overwrite the current configuration with the recommended values for </source>
            <translation>현재 구성을 ‘</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>시간</translation>
        </message>
        <message>
            <source>To </source>
            <translation>종료 </translation>
        </message>
        <message>
            <source>Today</source>
            <translation>오늘</translation>
        </message>
        <message>
            <source>Transfer History</source>
            <translation>전송 기록</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>유형</translation>
        </message>
        <message>
            <source>Unix glob pattern: * matches any characters, ? matches one character</source>
            <translation>Unix glob 패턴: *는 임의의 문자열, ?는 한 문자와 일치</translation>
        </message>
        <message>
            <source>Unlimited</source>
            <translation>무제한</translation>
        </message>
        <message>
            <source>Unmute</source>
            <translation>소리 켬</translation>
        </message>
        <message>
            <source>Upload/store failed. The server rejected the operation. Check write permissions on the server.</source>
            <translation>업로드/저장에 실패했습니다. 서버가 작업을 거부했습니다. 서버의 쓰기 권한을 확인하세요.</translation>
        </message>
        <message>
            <source>Username</source>
            <translation>사용자 이름</translation>
        </message>
        <message>
            <source>Variables: {original}, {date}, {time}, {counter}, {host}</source>
            <translation>변수: {original}, {date}, {time}, {counter}, {host}</translation>
        </message>
        <message>
            <source>Verify checksum (MD5)</source>
            <translation>체크섬 확인(MD5)</translation>
        </message>
        <message>
            <source>Video</source>
            <translation>비디오</translation>
        </message>
        <message>
            <source>Video only</source>
            <translation>비디오만</translation>
        </message>
        <message>
            <source>Waiting...</source>
            <translation>대기 중...</translation>
        </message>
        <message>
            <source>Warn and pause if disk space is low</source>
            <translation>디스크 공간이 부족하면 경고하고 일시 정지</translation>
        </message>
        <message>
            <source>Wrong username or password</source>
            <translation>사용자 이름 또는 암호가 틀렸습니다</translation>
        </message>
        <message>
            <source>dead.rule.warning</source>
            <translation>사용되지 않음: 앞의 규칙이 이 파일들을 이미 가져갑니다</translation>
        </message>
        <message>
            <source>ext.cat.audio</source>
            <translation>오디오</translation>
        </message>
        <message>
            <source>ext.cat.documents</source>
            <translation>문서</translation>
        </message>
        <message>
            <source>ext.cat.images</source>
            <translation>이미지</translation>
        </message>
        <message>
            <source>ext.cat.temp</source>
            <translation>임시 파일</translation>
        </message>
        <message>
            <source>ext.cat.video</source>
            <translation>비디오</translation>
        </message>
        <message>
            <source>ext.reset.button</source>
            <translation>프리셋으로 되돌리기</translation>
        </message>
        <message>
            <source>ext.unspecified.download</source>
            <translation>다운로드</translation>
        </message>
        <message>
            <source>ext.unspecified.ignore</source>
            <translation>무시</translation>
        </message>
        <message>
            <source>ext.unspecified.label</source>
            <translation>기타 확장자</translation>
        </message>
        <message numerus="yes">
            <source>failed after %n attempts</source>
            <translation>
                <numerusform>파일이 %n회 시도 후 실패했습니다</numerusform>
            </translation>
        </message>
        <message>
            <source>growing...</source>
            <translation>커지는 중...</translation>
        </message>
        <message>
            <source>invoice</source>
            <translation>청구서</translation>
        </message>
        <message>
            <source>jpg, pdf, raw, cr3</source>
            <translation>jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>just now</source>
            <translation>방금</translation>
        </message>
    </context>
</TS>
